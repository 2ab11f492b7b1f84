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
  mac.preferences = {{"AppleInterfaceStyle", "Dark"}};
  mac.postNotification("AppleInterfaceThemeChangedNotification");
  fake::serve();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(desktop->interfaceStyle(), "Dark");
}

TEST_F(MacDesktop, MonitorsPressesAndReleasedKeysOfOtherPrograms) {
  using enum fake::Event;
  QList<fake::Event> watched;
  for (const auto event : {LeftMouseDown, RightMouseDown, KeyUp, KeyDown}) {
    std::unique_ptr<EventMonitor> monitor;
    monitor = desktop->addGlobalMonitor([&] {
      watched += event;
      monitor.reset();
    });
    mac.sendEvent(event);
    mac.sendEvent(event);
  }
  EXPECT_EQ(watched, (QList{LeftMouseDown, RightMouseDown, KeyUp}));
}

TEST_F(MacDesktop, IsReopenedWhenItIsActivatedWhileActive) {
  int times = 0;
  QObject::connect(desktop.get(), &Desktop::reopened, [&] { ++times; });
  for (const auto state : {Qt::ApplicationActive, Qt::ApplicationInactive, Qt::ApplicationActive}) {
    emit qGuiApp->applicationStateChanged(state);
  }
  EXPECT_EQ(times, 0);
  emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_EQ(times, 1);
}

TEST_F(MacDesktop, ShowsTheMenuAtARightClickOnlyAndAPictureThatTheBarColours) {
  const std::unique_ptr<TrayItem> item = desktop->makeTrayItem();
  QMenu menu;
  menu.addAction("Quit");
  item->setMenu(&menu);
  auto *icon = item->findChild<QSystemTrayIcon *>();
  EXPECT_EQ(icon->contextMenu(), nullptr) << "the system would show it at every click";
  emit icon->activated(QSystemTrayIcon::Trigger);
  EXPECT_FALSE(menu.isVisible());
  emit icon->activated(QSystemTrayIcon::Context);
  EXPECT_TRUE(menu.isVisible());
  item->setImage(QPixmap(18, 18));
  EXPECT_TRUE(icon->icon().isMask());
}
