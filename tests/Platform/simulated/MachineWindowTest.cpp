#include "Demo/MachineWindow.h"

#include <gtest/gtest.h>

#include "support/TestMachine.h"

namespace {

class Window : public testing::Test {
 protected:
  Window() {
    machine.settle();
    window.show();
  }

  void select(const QString &bsdName) {
    auto *tree = window.findChild<MachineTree *>();
    tree->setCurrentItem(tree->findItems(bsdName, Qt::MatchExactly | Qt::MatchRecursive).value(0));
  }
  void press(const QString &title) {
    for (auto *button : window.findChildren<QAbstractButton *>()) {
      if (button->text() == title && button->isEnabled()) {
        QTest::mouseClick(button, Qt::LeftButton);
        machine.settle();
        return;
      }
    }
    ADD_FAILURE() << "no button to press: " << title.toStdString();
  }
  void choose(const QString &label, const QString &choice) {
    for (auto *button : window.findChildren<ChoiceButton *>()) {
      if (!button->text().startsWith(label + ": ")) continue;
      for (QAction *action : button->menu()->actions()) {
        if (action->text() == choice) action->trigger();
      }
      EXPECT_EQ(button->text(), label + ": " + choice);
    }
  }
  void type(const QString &volumeName) {
    for (auto *field : window.findChildren<QLineEdit *>()) {
      if (field->accessibleName() == "Volume name") field->setText(volumeName);
    }
  }
  QString column(const QString &bsdName, int column) {
    return window.findChild<MachineTree *>()
        ->findItems(bsdName, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0)
        ->text(column);
  }

  TestMachine machine{twoEspMachine()};
  MachineWindow window{machine.platform};
};

}  // namespace

TEST_F(Window, DoesToTheMachineWhatOthersDo) {
  select("disk0s1");
  press("Mount");
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
  EXPECT_EQ(column("disk0s1", 3), "mounted at EFI");
  type("BOOT");
  press("Rename");
  EXPECT_EQ(machine.status(), machine.folder("EFI") + " renamed!");
  press("Pull");
  EXPECT_EQ(machine.listed(), QStringList({"disk1s1"}));
  press("Plug back");
  EXPECT_EQ(machine.listed(), QStringList({"disk0s1", "disk1s1"}));
  EXPECT_EQ(column("disk0s1", 2), "BOOT");
  press("is absent");
  EXPECT_TRUE(machine.listed().isEmpty());
}

TEST_F(Window, ChoosesHowTheNextRequestsEnd) {
  select("disk1s1");
  choose("Mount", "not writable");
  select("disk0s1");
  choose("Mishap", "disk vanishes during");
  EXPECT_EQ(column("disk1s1", 4), "mount: not writable");
  machine.click(machine.mountButton(1));
  EXPECT_EQ(machine.status(), "mount failed for disk1s1, status not writable");
  machine.click(machine.mountButton(0));
  EXPECT_EQ(machine.status(), "mount failed for disk0s1, status not found");
  EXPECT_EQ(column("disk0", 3), "pulled");
}
