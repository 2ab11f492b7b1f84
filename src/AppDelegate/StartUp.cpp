#include <QApplication>

#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/NotificationCenter.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"
#include "Platform/Platform.h"
#include "SavedData/ManagedObjectContext.h"
#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"

using namespace Qt::StringLiterals;

namespace {

const QString kVersion = u"1.6"_s;

void setBackground(QWidget *window, const QColor &color) {
  QPalette palette = window->palette();
  palette.setColor(QPalette::Window, color);
  window->setPalette(palette);
}

// As a rule the program starts without any window that shows, and takes the focus from nobody.
void bringToFront() {
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    window->raise();
    window->activateWindow();
  }
}

}  // namespace

AppDelegate::AppDelegate(Platform &platform, Desktop &desktop)
    : _platform(platform), _desktop(desktop) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
  connect(&_desktop, &Desktop::interfaceThemeChanged, this, &AppDelegate::darkModeAndRetina);
  stopRunning();
  NotificationCenter::defaultCenter().addObserver(
      this, kArbitratorNotification, [this](const Notification &note) { arbitrator(note); });

  setBackground(_window, Qt::white);
  _popover->setDelegate(this);
  _popover->setBehavior(Popover::Behavior::Transient);
  _popover->setAnimates(true);

  topBarItem = std::make_unique<StatusItem>(_desktop.makeTrayItem(), _platform.clock());
  darkModeAndRetina();
  topBarItem->setMenu(_menu);
  connect(topBarItem.get(), &StatusItem::action, this, &AppDelegate::showPopover);
  connect(topBarItem.get(), &StatusItem::dismissal, _popover, &QWidget::close);
  connect(&_desktop, &Desktop::reopened, this, &AppDelegate::showPopover);
  topBarItem->setHighlighted(false);

  _versionLabel->setStringValue(u"Keldra v"_s + kVersion);
  _statusTextField->setStringValue(QString());

  restoreRunAtLoad();
  bringToFront();

  _tableView->setFloatsGroupRows(false);
  _tableView->setDelegate(this);
  _tableView->setDataSource(this);
  refreshListsOrLog();
  addRefreshObserver();
}
