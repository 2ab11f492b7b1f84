#include <gtest/gtest.h>

#include "Interface/ImageView.h"
#include "support/TestMachine.h"

TEST(Rows, ShowAPartitionsNameDiskAndMountPoint) {
  TestMachine machine(twoEspMachine());
  machine.tickShowAll();
  const QString disk0 =
      "\nparent of disk0,\nSamsung SSD: EFI System Partition, Recovery HD, System";
  const QString disk1 = "\nparent of disk1,\nWDC Blue: EFI System Partition, Data";
  EXPECT_EQ(machine.text(0), "ESP on disk0s1" + disk0);
  EXPECT_EQ(machine.text(1), "Recovery HD on disk0s2" + disk0);
  EXPECT_EQ(machine.text(2), "/ on disk0s3" + disk0);
  EXPECT_EQ(machine.text(4), "Data on disk1s2" + disk1);
  EXPECT_EQ(machine.text(5), "FAT on disk2s1\nparent of disk2,\nStick: FAT");
}

TEST(Rows, RefuseRowsAndColumnsThatDoNotExist) {
  TestMachine machine(twoEspMachine());
  TableView *table = machine.interface.tableView();
  EXPECT_EQ(machine.delegate.tableView(table, TableColumn{"Other"}, 0), nullptr);
  EXPECT_EQ(machine.delegate.tableView(table, TableColumn{"MainCell"}, 2), nullptr);
  EXPECT_EQ(machine.delegate.tableView(table, TableColumn{"MainCell"}, -1), nullptr);
}

TEST(Rows, SelectionIsStoredAndKeptByARefresh) {
  TestMachine machine(twoEspMachine());
  EXPECT_EQ(machine.delegate.lastSelectedRow(), -1);
  machine.interface.tableView()->setFocus();
  QTest::keyClick(machine.interface.tableView(), Qt::Key_End);
  EXPECT_EQ(machine.delegate.lastSelectedRow(), 1);
  machine.delegate.refreshLists();
  EXPECT_EQ(machine.delegate.lastSelectedRow(), 1);
}

TEST(Rows, AreMirroredForPeopleWhoReadFromRightToLeft) {
  TestMachine machine(twoEspMachine());
  const auto mirrored = [&](const QWidget *part) {
    const QRect place = part->geometry();
    return QRect(QPoint(machine.cell(0)->width() - 1 - place.right(), place.top()), place.size());
  };
  ESPTableCellView *cell = machine.cell(0);
  const QRect image = mirrored(cell->imageView());
  const QRect button = mirrored(cell->mountButton());
  const QRect text = mirrored(cell->textField());
  machine.interface.popover()->setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(cell->imageView()->geometry(), image);
  EXPECT_EQ(cell->mountButton()->geometry(), button);
  EXPECT_EQ(cell->textField()->geometry(), text);
}
