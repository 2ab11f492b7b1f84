#include <QGuiApplication>
#include <QMenu>
#include <QSystemTrayIcon>

#include "Platform/ThisMachine.h"
#include "macos/MacMachine.h"

namespace {

class MacDesktop : public MacMachine {
 protected:
  std::unique_ptr<Desktop> desktop = makeDesktop({});
};

}  // namespace

TEST_F(MacDesktop, FollowsTheInterfaceStyle) {
  int changes = 0;
  QObject::connect(desktop.get(), &Desktop::interfaceThemeChanged, [&] { ++changes; });
  EXPECT_FALSE(desktop->interfaceStyle().isValid());
  mac.globalPreferences = {{"AppleInterfaceStyle", "Dark"}};
  mac.postDistributedNotification("AppleInterfaceThemeChangedNotification");
  fake::serve();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(desktop->interfaceStyle(), "Dark");
  mac.globalPreferences = {{"AppleInterfaceStyle", fake::Dictionary{}}};
  EXPECT_FALSE(desktop->interfaceStyle().isValid());
}

TEST_F(MacDesktop, MonitorsPressesAndReleasedKeysOfOtherPrograms) {
  using fake::Event;
  for (const auto &[event, isWatched] :
       {std::pair(Event::LeftMouseDown, true), std::pair(Event::RightMouseDown, true),
        std::pair(Event::KeyUp, true), std::pair(Event::KeyDown, false)}) {
    int calls = 0;
    std::unique_ptr<EventMonitor> monitor;
    monitor = desktop->addGlobalMonitor([&] {
      ++calls;
      monitor.reset();
    });
    mac.sendEvent(event);
    mac.sendEvent(event);
    EXPECT_EQ(calls, isWatched ? 1 : 0);
  }
}

TEST_F(MacDesktop, WatchesItsOwnActivationWhereItMayNotWatchOthers) {
  mac.allowsEventMonitors = false;
  int calls = 0;
  const auto monitor = desktop->addGlobalMonitor([&] { ++calls; });
  emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_EQ(calls, 1);
}

TEST_F(MacDesktop, IsReopenedWhenItIsActivatedThoughItIsActive) {
  int times = 0;
  QObject::connect(desktop.get(), &Desktop::reopened, [&] { ++times; });
  for (const auto state : {Qt::ApplicationActive, Qt::ApplicationInactive, Qt::ApplicationActive}) {
    emit qGuiApp->applicationStateChanged(state);
  }
  EXPECT_EQ(times, 0);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_EQ(times, 1);
}

TEST_F(MacDesktop, ShowsTheMenuAtARightClickOnly) {
  const std::unique_ptr<TrayItem> item = desktop->makeTrayItem();
  QMenu menu;
  menu.addAction("Quit");
  item->setMenu(&menu);
  int clicks = 0;
  QObject::connect(item.get(), &TrayItem::activated, [&] { ++clicks; });
  auto *icon = item->findChild<QSystemTrayIcon *>();
  EXPECT_EQ(icon->contextMenu(), nullptr) << "the system would show it at every click";
  emit icon->activated(QSystemTrayIcon::Trigger);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(menu.isVisible());
  emit icon->activated(QSystemTrayIcon::Context);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(menu.isVisible());
}
