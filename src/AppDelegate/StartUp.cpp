#include <QApplication>
#include <QTimer>

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
// A tray that exists shows the item within this time.
constexpr std::chrono::milliseconds kTraysTime(1200);

void setBackground(QWidget *window, const QColor &color) {
  QPalette palette = window->palette();
  palette.setColor(QPalette::Window, color);
  window->setPalette(palette);
}

// As a rule the program starts without a visible window and does not take the focus.
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
  NotificationCenter::defaultCenter().addObserver(
      this, kVolumeInUseNotification, [this](const Notification &note) {
        _volumeInUse = note.userInfo.value(kPartitionKey).toString();
      });

  setBackground(_window, Qt::white);
  _popover->setDelegate(this);
  _popover->setDesktop(&_desktop);
  _popover->setBehavior(Popover::Behavior::Transient);
  _popover->setAnimates(true);

  topBarItem = std::make_unique<StatusItem>(_desktop.makeTrayItem(), _platform.clock());
  darkModeAndRetina();
  topBarItem->setMenu(_menu);
  connect(topBarItem.get(), &StatusItem::action, this, &AppDelegate::showPopover);
  connect(topBarItem.get(), &StatusItem::dismissal, this, &AppDelegate::dismissPopover);
  connect(&_desktop, &Desktop::reopened, this, &AppDelegate::showPopover);
  topBarItem->setOpen(false);

  _versionLabel->setStringValue(u"Keldra v"_s + kVersion);
  _statusTextField->setStringValue(QString());

  restoreRunAtLoad();
  bringToFront();

  _tableView->setFloatsGroupRows(false);
  _tableView->setDelegate(this);
  _tableView->setDataSource(this);
  refreshListsOrLog();
  addRefreshObserver();
  // At login the tray may come late, and no user is waiting for the program.
  if (!_desktop.wasStartedAtLogin()) {
    QTimer::singleShot(kTraysTime, this, &AppDelegate::explainMissingTray);
  }
}
