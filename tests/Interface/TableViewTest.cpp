#include <QEventLoop>
#include <QPointer>
#include <QScrollBar>

#include "Interface/TableFixture.h"

namespace {

class TableViewTest : public TableFixture {};

TEST_F(TableViewTest, OnlyRowsInViewHaveCellsAndTheyAreUsedAgain) {
  QList<Row> list = manyRows(1000);
  list[0].dead = true;  // a disabled button stays so, and its cell is used for no other
  reload(list);
  EXPECT_EQ(cellsAlive(), 0) << "before anybody looks";
  show(list);
  EXPECT_EQ(table->visibleCells().size(), 8U);
  for (int turn = 0; turn < 5; ++turn) {
    table->scrollRowToVisible(600);
    EXPECT_EQ(mountButton(600)->title(), "mount disk600s1");
    table->scrollRowToVisible(0);
    EXPECT_FALSE(mountButton(0)->isEnabled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_LE(cellsAlive(), 2 * 9 + 1);
}

TEST_F(TableViewTest, ReloadKeepsPlaceCellsAndSelectionAndReportsNone) {
  show(manyRows(100));
  table->scrollRowToVisible(50);
  QTest::mouseClick(cell(48), Qt::LeftButton, {}, {100, 20});
  EXPECT_EQ(selectionChanges, 1);
  const int place = table->findChild<QScrollBar *>()->value();
  const RowButton *button = mountButton(50);
  reload(manyRows(99));
  EXPECT_EQ(table->findChild<QScrollBar *>()->value(), place);
  EXPECT_EQ(mountButton(50), button);
  EXPECT_EQ(table->selectedRow(), 48);
  reload(manyRows(10));
  EXPECT_EQ(table->visibleCells().back()->rowKey(), "disk9s1");
  EXPECT_EQ(table->selectedRow(), -1);
  EXPECT_EQ(selectionChanges, 1);
}

TEST_F(TableViewTest, PressIsLostWhenItsCellShowsAnotherPartition) {
  QStringList titles;
  clicked = [&](RowButton *sender) { titles += sender->title(); };
  show({{"disk0s1"}, {"disk1s1"}});
  RowButton *button = mountButton(0);
  QTest::mousePress(button, Qt::LeftButton);
  reload({{"disk9s1"}, {"disk0s1"}});
  QTest::mouseMove(button, {5, 5});
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(titles, QStringList());

  QTest::mousePress(button, Qt::LeftButton);
  reload(rows);
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(titles, QStringList("mount disk9s1"));
}

TEST_F(TableViewTest, ButtonOutlivesAReloadInItsOwnAction) {
  show({{"disk0s1"}});
  QPointer<RowButton> button = mountButton(0);
  clicked = [&](RowButton *) {
    reload({{"disk0s1", true, true}});  // its cell can not be used again now
    reload({{"disk1s1"}});
    QEventLoop loop;
    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    loop.exec();
    EXPECT_FALSE(button.isNull());
  };
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(mountButton(0)->title(), "mount disk1s1");
  reload(rows);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(button.isNull());
}

TEST_F(TableViewTest, FocusFollowsThePartitionAndLeavesTheRowsInOrder) {
  QList<Row> list = manyRows(12);
  for (int row = 0; row < 12; ++row) {
    list[row].mounted = true;
    show(list);
    table->scrollRowToVisible(row);
    cell(row)->openButton()->setFocus();
    reload(list);
    EXPECT_EQ(focusedTitle(), "open /" + list[row].name);
    list[row].mounted = false;
    reload(list);  // the button goes, with its focus
    for (int each = 0; each < 12; ++each) {
      EXPECT_TRUE(!cell(each) || cell(each)->rowKey() == list[each].name) << row << ' ' << each;
    }
    EXPECT_EQ(focusedTitle(), "mount " + list[row].name);
  }
  reload({{"new"}, {"disk11s1"}});
  EXPECT_EQ(focusedTitle(), "mount disk11s1");
  reload({{"disk0s1"}, {"disk7s1"}});
  EXPECT_TRUE(table->hasFocus());
}

TEST_F(TableViewTest, TabWalksThroughEveryRowAndLeaves) {
  QList<Row> list = manyRows(20);
  list[0].mounted = true;
  list[3] = {"disk3s1", true, true};
  list[5] = {""};
  show(list);
  table->setFocus();
  QStringList met;
  for (int step = 0; step < 50 && window.focusWidget() != after; ++step) {
    press(Qt::Key_Tab);
    met.append(focusedTitle());
  }
  QStringList expected{"umount disk0s1", "open /disk0s1"};
  for (int unit = 1; unit < 20; ++unit) {
    if (unit != 5) expected += QString(unit == 3 ? "open /disk%1s1" : "mount disk%1s1").arg(unit);
  }
  EXPECT_EQ(met, expected << QString());

  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusedTitle(), "mount disk19s1");
  for (int step = 0; step < 20; ++step) press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(table->hasFocus());
}

TEST_F(TableViewTest, KeysMoveTheSelectionAndScroll) {
  show(manyRows(30));
  table->setFocus();
  const std::vector<std::pair<Qt::Key, qint64>> steps = {
      {Qt::Key_Down, 0},  {Qt::Key_Down, 1}, {Qt::Key_PageDown, 8}, {Qt::Key_End, 29},
      {Qt::Key_Down, 29}, {Qt::Key_Up, 28},  {Qt::Key_Home, 0},     {Qt::Key_PageUp, 0}};
  for (const auto &[key, row] : steps) {
    press(key);
    EXPECT_EQ(table->selectedRow(), row);
    EXPECT_TRUE(cell(row) && table->rect().contains(cell(row)->geometry()));
  }
}

}  // namespace
