#include "Demo/MachineWindow.h"

#include <gtest/gtest.h>

#include "support/TestMachine.h"

namespace {

class MachineWindowTest : public testing::Test {
 protected:
  void press(const QString &title) {
    for (auto *button : window.findChildren<QPushButton *>()) {
      if (button->text() == title) button->click();
    }
    machine.settle();
  }
  void choose(const QString &name, const QString &choice) {
    for (auto *box : window.findChildren<QComboBox *>()) {
      if (box->accessibleName() != name) continue;
      box->setCurrentText(choice);
      emit box->activated(box->currentIndex());
    }
  }
  QTreeWidgetItem *item(const QString &name) {
    const auto *tree = window.findChild<MachineTree *>();
    return tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
  }

  TestMachine machine{twoEspMachine()};
  MachineWindow window{machine.platform};
};

}  // namespace

TEST_F(MachineWindowTest, ChangesTheMachineAndTheAnswersToRequests) {
  item("disk0s1")->treeWidget()->setCurrentItem(item("disk0s1"));
  press("Mount");
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
  window.findChildren<QLineEdit *>().constLast()->setText("BOOT");
  press("Rename");
  EXPECT_EQ(machine.status(), machine.folder("EFI") + " renamed!");
  press("Pull");
  EXPECT_EQ(machine.listed(), QStringList({"disk1s1"}));
  EXPECT_EQ(item("disk0")->text(3), "pulled");
  press("Plug back");
  EXPECT_EQ(item("disk0s1")->text(2), "BOOT");
  choose("Mount", "not writable");
  choose("Mishap", "service dies");
  EXPECT_EQ(item("disk0s1")->text(4), "mount: not writable, service dies");
  machine.click(machine.mountButton(0));
  EXPECT_TRUE(machine.listed().isEmpty());
}
