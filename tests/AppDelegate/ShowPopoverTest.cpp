#include <gtest/gtest.h>

#include <QAccessible>

#include "Interface/Notice.h"
#include "support/TestMachine.h"

namespace {

class ShowPopoverTest : public testing::Test {
 protected:
  Popover &popover() { return *machine.interface.popover(); }

  TestMachine machine{twoEspMachine()};  // opens the popover
};

TEST_F(ShowPopoverTest, OnlyActivityElsewhereClosesItAndDestroysTheMonitor) {
  popover().close();
  machine.delegate.showPopover();
  EXPECT_EQ(machine.desktop.monitors, 1);
  machine.desktop.actElsewhere();
  EXPECT_FALSE(popover().isShown());
  EXPECT_EQ(machine.desktop.monitors, 0);
  machine.delegate.showPopover();
  popover().close();
  EXPECT_NE(machine.delegate.popoverTransiencyMonitor(), nullptr);
}

TEST_F(ShowPopoverTest, OpensAtTheItemWithAnEmptyStatusLine) {
  machine.click(machine.mountButton(0));
  EXPECT_FALSE(machine.status().isEmpty());
  machine.desktop.item->shownAt = QRect();
  emit machine.desktop.reopened();
  machine.settle();
  EXPECT_EQ(machine.interface.statusTextField()->stringValue(), QString());
  EXPECT_EQ(popover().placement().arrowEdge, std::nullopt) << "the item's place is unknown";
  popover().close();
  machine.desktop.item->shownAt = QRect(400, 0, 24, 24);
  emit machine.desktop.reopened();
  EXPECT_TRUE(popover().isShown());
  EXPECT_TRUE(popover().placement().arrowEdge.has_value());
}

TEST_F(ShowPopoverTest, TabReachesEveryControlInOrderWithAVisibleFocus) {
  QStringList met;
  QWidget *focused = machine.interface.tableView();
  for (int step = 0; step < 9; ++step) {
    focused->setFocus();
    QTest::keyClick(focused, Qt::Key_Tab);
    focused = popover().focusWidget();
    met += QAccessible::queryAccessibleInterface(focused)->text(QAccessible::Name);
    const QImage seen = focused->grab().toImage();
    focused->clearFocus();
    EXPECT_NE(focused->grab().toImage(), seen) << met.last().toStdString();
  }
  EXPECT_EQ(met.join('|'),
            "mount disk0s1|mount disk1s1|Show all|Force unmount|Launch at login|Info|Web site|Quit|"
            "Partitions");
}

TEST(ProgramWithoutATray, ShowsANoticeOnceUnlessTheSessionHasStartedIt) {
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
    EXPECT_EQ(interface.tableView()->visibleCells().empty(), startedAtLogin) << "not at login";
    interface.popover()->close();
    delegate.showPopover();
    EXPECT_FALSE(interface.trayNotice()->isVisible()) << "the notice is shown once";
  }
}

}  // namespace
