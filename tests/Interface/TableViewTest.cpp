// The popover's table with pointer, keyboard and screen readers.

#include "Interface/TableView.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>

#include "support/TestMachine.h"

namespace {

/// A hundred disks with an ESP each. The button of disk102's ESP is disabled: it is mounted at "/".
QByteArray hundredDisks() {
  QByteArrayList disks;
  for (int unit = 100; unit < 200; ++unit) {
    disks += R"({ "unit": )" + QByteArray::number(unit) + R"(, "partitions": [ { "slice": 1,
      "media": "EFI System Partition", "volume": { "kind": "msdos", "name": "EFI" )" +
             (unit == 102 ? R"(, "mountPoint": "/" } } ] })" : " } } ] }");
  }
  return R"({ "disks": [ )" + disks.join(", ") + " ] }";
}

class TableViewTest : public testing::Test {
 protected:
  void pull(int unit) {
    machine.platform.pull(unit);
    machine.settle();
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(popover->focusWidget(), key, modifiers);
  }
  QString focusedTitle() const {
    const auto *button = qobject_cast<RowButton *>(popover->focusWidget());
    return button ? button->title() : QString();
  }
  static void deleteWhatIsLeft() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  TestMachine machine{hundredDisks()};
  const QStringList names = machine.listed();
  const Popover *popover = machine.interface.popover();
  TableView *table = machine.interface.tableView();
  QAccessibleInterface *list = QAccessible::queryAccessibleInterface(table);
};

TEST_F(TableViewTest, OnlyRowsInViewHaveCellsAndCellsAreReused) {
  EXPECT_EQ(table->visibleCells().size(), 8U);
  for (int turn = 0; turn < 5; ++turn) {
    EXPECT_EQ(machine.mountButton(60)->title(), "mount disk160s1");
    EXPECT_FALSE(machine.mountButton(2)->isEnabled());
    deleteWhatIsLeft();
  }
  EXPECT_LE(table->findChildren<ESPTableCellView *>().size(), 2 * 9 + 1);
}

TEST_F(TableViewTest, ReloadKeepsScrollPositionCellsAndSelection) {
  const RowButton *button = machine.mountButton(50);
  QTest::mouseClick(machine.cell(48), Qt::LeftButton, {}, {100, 20});
  const int place = table->findChild<QScrollBar *>()->value();
  pull(199);
  EXPECT_EQ(table->findChild<QScrollBar *>()->value(), place);
  EXPECT_EQ(machine.mountButton(50), button);
  EXPECT_EQ(table->selectedRow(), 48);
  machine.platform.setPresence(DiskService::Presence::Absent);
  machine.settle();
  EXPECT_EQ(table->selectedRow(), -1);
  EXPECT_EQ(machine.delegate.lastSelectedRow(), 48);
  for (const int index : {-1, 0, 7}) EXPECT_EQ(list->child(index), nullptr) << "an outdated index";
}

TEST_F(TableViewTest, APressIsCancelledWhenTheCellShowsAnotherPartition) {
  RowButton *button = machine.mountButton(5);
  QTest::mousePress(button, Qt::LeftButton);
  pull(103);
  QTest::mouseMove(button, {5, 5});
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(button->title(), "mount disk106s1");
  QTest::mousePress(button, Qt::LeftButton);
  pull(150);
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(button->title(), "umount disk106s1");
}

TEST_F(TableViewTest, AButtonInItsActionSurvivesAReload) {
  machine.platform.setDelay("disk101s1", std::chrono::milliseconds(20));
  QPointer<RowButton> button = machine.mountButton(1);
  QTimer::singleShot(0, table, [&] {
    pull(101);  // now its cell cannot be reused
    pull(102);
  });
  QTimer::singleShot(10, table, [&] { EXPECT_TRUE(button && button->isActing()); });
  machine.click(button);
  EXPECT_EQ(machine.mountButton(1)->title(), "mount disk103s1");
  machine.delegate.refreshLists();
  deleteWhatIsLeft();
  EXPECT_TRUE(button.isNull());
}

TEST_F(TableViewTest, FocusStaysOnThePartitionAndTheRowsStayInOrder) {
  for (int row = 3; row < 12; ++row) {
    machine.platform.mountFromOutside(names[row]);
    machine.settle();
    machine.cell(row)->openButton()->setFocus();
    machine.platform.unmountFromOutside(names[row]);  // removes the button that has the focus
    machine.settle();
    for (int each = 0; each < 12; ++each) {
      const TableCellView *cell = table->cellAtRow(each);
      EXPECT_TRUE(!cell || cell->rowKey() == names[each]) << row << ' ' << each;
    }
    EXPECT_EQ(focusedTitle(), "mount " + names[row]);
  }
  pull(101);
  EXPECT_EQ(focusedTitle(), "mount disk111s1");
  pull(111);
  EXPECT_TRUE(table->hasFocus());
}

TEST_F(TableViewTest, TabWalksThroughEveryRowAndBack) {
  table->setFocus();
  for (const QString &name : names) {
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedTitle(), name == "disk102s1" ? "open /" : "mount " + name);
  }
  press(Qt::Key_Tab);
  EXPECT_TRUE(machine.interface.showAllDisksCheck()->hasFocus());
  for (qsizetype row = names.size(); row > 0; --row) press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusedTitle(), "mount disk100s1");
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(table->hasFocus());
}

TEST_F(TableViewTest, KeysMoveTheSelectionAndScroll) {
  table->setFocus();
  const std::vector<std::pair<Qt::Key, qint64>> steps = {
      {Qt::Key_Down, 0},  {Qt::Key_Down, 1}, {Qt::Key_PageDown, 8}, {Qt::Key_End, 99},
      {Qt::Key_Down, 99}, {Qt::Key_Up, 98},  {Qt::Key_Home, 0},     {Qt::Key_PageUp, 0}};
  for (const auto &[key, row] : steps) {
    press(key);
    EXPECT_EQ(table->selectedRow(), row);
    TableCellView *cell = table->cellAtRow(row);
    ASSERT_TRUE(cell && table->rect().contains(cell->geometry()));
    EXPECT_EQ(list->focusChild(), QAccessible::queryAccessibleInterface(cell));
    EXPECT_TRUE(list->focusChild()->state().selected);
  }
  EXPECT_FALSE(list->child(1)->state().selected);
}

}  // namespace
