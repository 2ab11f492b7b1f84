#include <gtest/gtest.h>

#include <QMenu>

#include "support/TestMachine.h"

TEST(Menu, ActsLikeTheRowsAndNotifiesWhileThePopoverIsClosed) {
  TestMachine machine(twoEspMachine());
  machine.interface.popover()->close();
  const auto choose = [&](const QString &title) {
    QStringList titles;
    for (QAction *action : machine.interface.menu()->actions()) {
      titles += action->text();
      if (action->text() == title) action->trigger();
    }
    machine.settle();
    return titles.join('|');
  };
  EXPECT_EQ(choose("mount disk0s1"), "Open Keldra||mount disk0s1|mount disk1s1||Quit");
  const QString path = machine.folder("EFI");
  EXPECT_EQ(machine.desktop.notifications, QStringList("disk0s1 mouted at " + path));
  machine.platform.setRefusals("disk0s1", std::nullopt, kDAReturnNotPermitted);
  EXPECT_EQ(choose("umount disk0s1"),
            "Open Keldra||umount disk0s1|open " + path + "|mount disk1s1||Quit");
  EXPECT_EQ(machine.desktop.notifications.size(), 2);
  machine.delegate.showPopover();
  choose("mount disk1s1");
  EXPECT_EQ(machine.mountButton(1)->title(), "umount disk1s1");
  EXPECT_EQ(machine.desktop.notifications.size(), 2) << "no notification while the popover is open";
}
