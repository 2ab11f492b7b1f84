#include <QApplication>
#include <QIcon>

#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/NotificationCenter.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

namespace {
const QString kVersion = u"1.6"_s;
}

AppDelegate::AppDelegate(Platform &platform) : _platform(platform) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
  stopRunning();
  NotificationCenter::defaultCenter().addObserver(
      this, kArbitratorNotification, [this](const Notification &note) { arbitrator(note); });

  _popover->setDelegate(this);
  _popover->setBehavior(Popover::Behavior::Transient);
  _popover->setAnimates(true);

  topBarItem = std::make_unique<StatusItem>(_platform.clock());
  darkModeAndRetina();
  topBarItem->setMenu(_menu);
  connect(topBarItem.get(), &StatusItem::action, this, &AppDelegate::showPopover);
  topBarItem->setHighlighted(false);

  _versionLabel->setStringValue(u"Keldra v"_s + kVersion);
  _statusTextField->setStringValue(QString());

  restoreRunAtLoad();

  _tableView->setFloatsGroupRows(false);
  _tableView->setDelegate(this);
  _tableView->setDataSource(this);
  refreshListsOrLog();
  addRefreshObserver();
}

void AppDelegate::closeApp() {
  // A nested wait looks at its own flag only, so the program ends when a row action's wait is over.
  QCoreApplication::exit(0);
}

void AppDelegate::darkModeAndRetina() {
  topBarItem->setImage(QIcon(u":/normal.png"_s));
}
