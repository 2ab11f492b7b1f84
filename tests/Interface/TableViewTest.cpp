#include <QEventLoop>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>

#include "Interface/TableFixture.h"

namespace {

class TableViewTest : public TableFixture {
 protected:
  QScrollBar *scrollBar() const { return table->findChild<QScrollBar *>(); }

  void wheel(int notches) {
    const QPointF position = table->rect().center();
    QWheelEvent event(position, table->mapToGlobal(position), {}, {0, -120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(table, &event);
  }
};

TEST_F(TableViewTest, OnlyRowsInViewHaveCells) {
  show(manyRows(1000));
  EXPECT_EQ(table->height(), 8 * table->rowHeight());
  EXPECT_EQ(table->visibleCells().size(), 8U);

  for (int turn = 0; turn < 200; ++turn) wheel(3);
  EXPECT_GE(table->rowOfCell(table->visibleCells().front()), 500);
  EXPECT_EQ(cell(600)->mountButton()->title(), "mount disk600s1");
  EXPECT_LE(cellsAlive(), 2 * 9);
  EXPECT_TRUE(added.contains(600));
}

TEST_F(TableViewTest, HeightFollowsTheRowsUpToEight) {
  show(manyRows(1));
  const int one = table->sizeHint().height();
  EXPECT_GE(one, 82);
  reload(manyRows(3));
  EXPECT_EQ(table->sizeHint().height(), 3 * one);
  reload(manyRows(40));
  EXPECT_EQ(table->sizeHint().height(), 8 * one);
}

TEST_F(TableViewTest, ReloadNeverReportsASelection) {
  show(manyRows(3));
  QTest::mouseClick(cell(2), Qt::LeftButton, {}, {100, 20});
  EXPECT_EQ(table->selectedRow(), 2);
  EXPECT_EQ(selectionChanges, 1);
  reload(manyRows(3));
  EXPECT_EQ(table->selectedRow(), 2);
  reload(manyRows(1));
  EXPECT_EQ(table->selectedRow(), -1);
  reload({});
  EXPECT_EQ(selectionChanges, 1);
}

TEST_F(TableViewTest, ReloadKeepsThePlaceAndTheCells) {
  show(manyRows(100));
  table->scrollRowToVisible(50);
  const int place = scrollBar()->value();
  const RowButton *button = mountButton(50);
  reload(manyRows(99));
  EXPECT_EQ(scrollBar()->value(), place);
  EXPECT_EQ(mountButton(50), button);
  reload(manyRows(10));
  EXPECT_EQ(table->rowOfCell(table->visibleCells().back()), 9);
}

TEST_F(TableViewTest, RowsWithoutACellStayEmpty) {
  show({{"disk0s1"}, {""}, {"disk2s1"}});
  EXPECT_EQ(cell(1), nullptr);
  EXPECT_EQ(mountButton(2)->title(), "mount disk2s1");
  EXPECT_EQ(table->makeView("OtherCell"), nullptr);
}

TEST_F(TableViewTest, CellWithADisabledMountButtonIsNotUsedAgain) {
  show({{"disk0s1", true, true}, {"disk1s1"}});
  for (int turn = 0; turn < 3; ++turn) reload({{"disk5s1"}, {"disk0s1", true, true}, {"disk1s1"}});
  EXPECT_TRUE(mountButton(0)->isEnabled());
  EXPECT_FALSE(mountButton(1)->isEnabled());
  EXPECT_TRUE(mountButton(2)->isEnabled());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_LE(cellsAlive(), 5);
}

TEST_F(TableViewTest, PressIsLostWhenItsCellShowsAnotherPartition) {
  show({{"disk0s1"}, {"disk1s1"}});
  RowButton *button = mountButton(0);
  QTest::mousePress(button, Qt::LeftButton);
  reload({{"disk9s1"}, {"disk0s1"}});
  QTest::mouseMove(button, {5, 5});
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(clicked, QStringList());

  QTest::mousePress(button, Qt::LeftButton);
  reload(rows);
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(clicked, QStringList("mount disk9s1"));
}

TEST_F(TableViewTest, ButtonOutlivesAReloadInItsOwnAction) {
  show({{"disk0s1"}});
  QPointer<RowButton> button = mountButton(0);
  action = [&](RowButton *) {
    reload({{"disk0s1", true, true}});  // its cell can not be used again now
    reload({{"disk1s1"}});
    QEventLoop loop;
    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    loop.exec();
    EXPECT_FALSE(button.isNull());
  };
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicked.size(), 1);
  EXPECT_EQ(mountButton(0)->title(), "mount disk1s1");

  reload(rows);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(button.isNull());
}

TEST_F(TableViewTest, FocusFollowsThePartition) {
  show({{"disk0s1"}, {"disk1s1", true}});
  cell(1)->openButton()->setFocus();
  reload({{"disk0s1"}, {"disk0s2"}, {"disk1s1", true}});
  EXPECT_EQ(focusedTitle(), "open /disk1s1");
  reload({{"disk0s1"}, {"disk1s1", false}});
  EXPECT_EQ(focusedTitle(), "mount disk1s1");
  reload({{"disk0s1"}, {"disk7s1"}});
  EXPECT_TRUE(table->hasFocus());
}

TEST_F(TableViewTest, AButtonThatGoesWithItsFocusLeavesTheRowsInOrder) {
  QList<Row> list = manyRows(12);
  for (int row = 0; row < 12; ++row) {
    list[row].mounted = true;
    show(list);
    table->scrollRowToVisible(11 - row);
    QTest::mouseClick(cell(11 - row), Qt::LeftButton, {}, {100, 20});
    table->scrollRowToVisible(row);
    cell(row)->openButton()->setFocus();
    list[row].mounted = false;
    reload(list);
    for (const TableCellView *each : table->visibleCells()) {
      EXPECT_TRUE(each->isVisible());
      EXPECT_EQ(each->rowKey(), list[table->rowOfCell(each)].name);
    }
    EXPECT_EQ(focusedTitle(), "mount " + list[row].name);
  }
}

TEST_F(TableViewTest, CellsThatCannotBeUsedAgainDoNotPileUp) {
  QList<Row> list = manyRows(40);
  list[0] = {"disk0s1", true, true};
  show(list);
  for (int turn = 0; turn < 50; ++turn) {
    table->scrollRowToVisible(39);
    table->scrollRowToVisible(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_LE(cellsAlive(), 2 * 9 + 1);
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
  QStringList expected{"mount disk0s1", "open /disk0s1"};
  expected[0] = "umount disk0s1";
  for (int unit = 1; unit < 20; ++unit) {
    if (unit == 5) continue;
    expected += QString(unit == 3 ? "open /disk%1s1" : "mount disk%1s1").arg(unit);
  }
  EXPECT_EQ(met, expected << QString());

  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusedTitle(), "mount disk19s1");
  EXPECT_EQ(table->rowOfCell(cell(19)), 19);
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
    ASSERT_NE(cell(row), nullptr);
    EXPECT_TRUE(table->rect().contains(cell(row)->geometry()));
  }
}

}  // namespace
