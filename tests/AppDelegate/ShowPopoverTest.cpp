#include <gtest/gtest.h>

#include <QTimer>

#include "Interface/Notice.h"
#include "support/TestMachine.h"

namespace {

class ShowPopoverTest : public testing::Test {
 protected:
  Popover &popover() { return *machine.interface.popover(); }

  TestMachine machine{twoEspMachine()};  // opens it
};

TEST_F(ShowPopoverTest, ActivityElsewhereClosesItAndEndsTheMonitor) {
  machine.delegate.showPopover();
  EXPECT_EQ(machine.desktop.monitors, 1);
  machine.desktop.actElsewhere();
  EXPECT_FALSE(popover().isShown());
  EXPECT_EQ(machine.delegate.popoverTransiencyMonitor(), nullptr);
  EXPECT_EQ(machine.desktop.monitors, 0);
}

TEST_F(ShowPopoverTest, ClosingItOtherwiseLeavesTheMonitorToTheNextActivity) {
  popover().close();
  const EventMonitor *monitor = machine.delegate.popoverTransiencyMonitor();
  EXPECT_NE(monitor, nullptr);
  machine.delegate.showPopover();
  EXPECT_EQ(machine.delegate.popoverTransiencyMonitor(), monitor);
  EXPECT_EQ(machine.desktop.monitors, 1);
  popover().close();
  machine.desktop.actElsewhere();
  EXPECT_EQ(machine.desktop.monitors, 0);
}

TEST_F(ShowPopoverTest, ActivityElsewhereDuringARowActionIsDropped) {
  machine.platform.setDelay("disk0s1", std::chrono::milliseconds(20));
  QTimer::singleShot(0, &popover(), [this] { machine.desktop.actElsewhere(); });
  machine.click(machine.mountButton(0));
  EXPECT_TRUE(popover().isShown());
  EXPECT_EQ(machine.desktop.monitors, 1);
}

TEST_F(ShowPopoverTest, OpensWhereTheItemIsAndWithAnEmptyStatusLine) {
  machine.click(machine.mountButton(0));
  EXPECT_FALSE(machine.status().isEmpty());
  machine.desktop.item->shownAt = QRect();
  emit machine.desktop.reopened();
  machine.settle();
  EXPECT_EQ(machine.interface.statusTextField()->stringValue(), QString());
  EXPECT_EQ(popover().placement().arrowEdge, std::nullopt) << "nobody knows where the item is";
  popover().close();
  machine.desktop.item->shownAt = QRect(400, 0, 24, 24);
  emit machine.desktop.reopened();
  EXPECT_TRUE(popover().isShown());
  EXPECT_TRUE(popover().placement().arrowEdge.has_value());
}

TEST(ProgramWithoutATray, SaysSoInThePopoverOnceUnlessTheSessionHasStartedIt) {
  for (const bool startedAtLogin : {true, false}) {
    SimulatedPlatform platform(machineOf(twoEspMachine()), std::make_unique<SteppingClock>());
    const CurrentPlatform current(platform);
    SimulatedDesktop desktop;
    desktop.hasTray = false;
    desktop.startedAtLogin = startedAtLogin;
    AppDelegate delegate(platform, desktop);
    MainInterface interface;
    connectOutlets(interface, delegate);
    delegate.applicationDidFinishLaunching();
    const auto isShown = [&] { return interface.popover()->isShown(); };
    EXPECT_EQ(QTest::qWaitFor(isShown, 2000), !startedAtLogin);
    EXPECT_EQ(interface.trayNotice()->text(), startedAtLogin ? "" : "Get a tray.");
    interface.popover()->close();
    delegate.showPopover();
    EXPECT_FALSE(interface.trayNotice()->isVisible()) << "it has been said";
  }
}

TEST_F(ShowPopoverTest, RefusalThatFindsItClosedBecomesANotification) {
  machine.platform.setRefusals("disk0s1", kDAReturnNotPrivileged, {});
  machine.click(machine.mountButton(0));
  machine.settle();
  EXPECT_EQ(machine.desktop.notifications, QStringList());
  RowButton *button = machine.mountButton(0);
  popover().close();
  button->click();
  machine.settle();
  EXPECT_EQ(machine.desktop.notifications,
            QStringList("mount failed for disk0s1, status not privileged"));
}

}  // namespace
