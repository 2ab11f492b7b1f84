#include <gtest/gtest.h>

#include <QLabel>
#include <QMenu>
#include <QTimer>

#include "support/TestMachine.h"

namespace {

class MenuTest : public testing::Test {
 protected:
  MenuTest() {
    machine.interface.popover()->close();
    machine.settle();
  }

  QStringList titles() const {
    QStringList titles;
    for (const QAction *action : machine.interface.menu()->actions()) titles += action->text();
    return titles;
  }
  void choose(const QString &title) {
    for (QAction *action : machine.interface.menu()->actions()) {
      if (action->text() == title) action->trigger();
    }
    machine.settle();
  }

  TestMachine machine{twoEspMachine()};
};

TEST_F(MenuTest, HoldsWhatTheRowsDoAndKeepsUpWithThem) {
  EXPECT_EQ(titles(),
            QStringList({"Open Keldra", "", "mount disk0s1", "mount disk1s1", "", "Quit"}));
  choose("mount disk0s1");
  const QString opened = "open " + machine.folder("EFI");
  EXPECT_EQ(titles(), QStringList({"Open Keldra", "", "umount disk0s1", opened, "mount disk1s1", "",
                                   "Quit"}));
}

TEST_F(MenuTest, OutcomeIsToldToWhoeverDoesNotSeeThePopover) {
  const QString path = machine.folder("EFI");
  choose("mount disk0s1");
  EXPECT_EQ(machine.desktop.notifications, QStringList("disk0s1 mouted at " + path));
  machine.platform.setRefusals("disk0s1", std::nullopt, kDAReturnNotPermitted);
  choose("umount disk0s1");
  EXPECT_EQ(machine.desktop.notifications.size(), 2);
  machine.delegate.showPopover();
  choose("mount disk1s1");
  EXPECT_EQ(machine.desktop.notifications.size(), 2) << "seen there";
}

TEST_F(MenuTest, ChoosesNothingWhileARowActionIsUnderWay) {
  machine.platform.setDelay("disk0s1", std::chrono::milliseconds(20));
  machine.delegate.showPopover();
  bool wasOffered = true;
  QTimer::singleShot(0, machine.interface.popover(), [&] {
    wasOffered = machine.interface.menu()->actions()[3]->isEnabled();
    machine.desktop.clickItem();
  });
  machine.click(machine.mountButton(0));
  EXPECT_FALSE(wasOffered);
  EXPECT_TRUE(machine.interface.popover()->isShown()) << "after a click on the item";
  EXPECT_TRUE(machine.interface.menu()->actions()[3]->isEnabled());
}

}  // namespace
