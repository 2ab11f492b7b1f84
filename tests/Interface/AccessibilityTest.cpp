// What a screen reader, or a test from outside, finds.

#include <QAccessible>

#include "Interface/EmptyView.h"
#include "Interface/MainInterface.h"
#include "Interface/TableFixture.h"

namespace {

QAccessibleInterface *accessible(QObject *object) {
  return QAccessible::queryAccessibleInterface(object);
}

class AccessibleTableTest : public TableFixture {};

TEST_F(AccessibleTableTest, RowsAreListItemsWithTheirButtons) {
  show({{"disk0s1", true}, {""}, {"disk2s1"}});
  QAccessibleInterface *list = accessible(table);
  EXPECT_EQ(list->role(), QAccessible::List);
  ASSERT_EQ(list->childCount(), 2);

  QAccessibleInterface *first = list->child(0);
  EXPECT_EQ(first->role(), QAccessible::ListItem);
  EXPECT_EQ(first->text(QAccessible::Name), "ESP on disk0s1\nparent of disk,\nA disk");
  EXPECT_EQ(first->parent(), list);
  EXPECT_EQ(list->indexOfChild(first), 0);
  ASSERT_EQ(first->childCount(), 2);
  EXPECT_EQ(first->child(0)->text(QAccessible::Name), "umount disk0s1");
  EXPECT_EQ(first->child(1)->text(QAccessible::Name), "open /disk0s1");
  EXPECT_EQ(first->child(1)->role(), QAccessible::Button);
  EXPECT_EQ(first->indexOfChild(first->child(1)), 1);
  EXPECT_EQ(list->child(1)->childCount(), 1);
}

TEST_F(AccessibleTableTest, StaleIndicesFindNothing) {
  show(manyRows(100));
  QAccessibleInterface *list = accessible(table);
  const int before = list->childCount();
  reload(manyRows(1));
  for (const int index : {-1, 1, before - 1, 1000}) EXPECT_EQ(list->child(index), nullptr);
  for (const int index : {-1, 1, 5}) EXPECT_EQ(list->child(0)->child(index), nullptr);
  reload({});
  EXPECT_EQ(list->child(0), nullptr);
}

TEST_F(AccessibleTableTest, SelectedRowHasTheFocus) {
  show(manyRows(3));
  table->setFocus();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  QAccessibleInterface *list = accessible(table);
  EXPECT_TRUE(list->child(1)->state().selected);
  EXPECT_TRUE(list->child(1)->state().focused);
  EXPECT_FALSE(list->child(0)->state().selected);
  EXPECT_EQ(list->focusChild(), list->child(1));
}

TEST(AccessibleInterfaceTest, EveryControlHasItsName) {
  const MainInterface interface;
  const std::vector<std::pair<QObject *, QString>> names = {
      {interface.popover(), "Keldra"},
      {interface.tableView(), "Partitions"},
      {interface.showAllDisksCheck(), "Show all"},
      {interface.forceUmountCheck(), "Force unmount"},
      {interface.runAtLoadCheck(), "Launch at login"},
      {interface.quitButton(), "Quit"},
      {interface.statusTextField(), "Status"}};
  for (const auto &[object, name] : names) {
    EXPECT_EQ(accessible(object)->text(QAccessible::Name), name);
  }
}

TEST(AccessibleInterfaceTest, StatusLineIsALabelThatSaysItsText) {
  const MainInterface interface;
  interface.statusTextField()->setStringValue("disk0s1 mouted at /media/a");
  QAccessibleInterface *status = accessible(interface.statusTextField());
  EXPECT_EQ(status->role(), QAccessible::StaticText);
  EXPECT_EQ(status->text(QAccessible::Description), "disk0s1 mouted at /media/a");
  ASSERT_NE(status->textInterface(), nullptr);
  EXPECT_EQ(status->textInterface()->characterCount(), 26);
  EXPECT_EQ(status->textInterface()->text(8, 14), "mouted");
  EXPECT_EQ(status->textInterface()->text(8, -1), "mouted at /media/a");
}

TEST(AccessibleInterfaceTest, StatusLineAnnouncesWhatItSaysWhileItIsSeen) {
  const MainInterface interface;
  TextField *status = interface.statusTextField();
  QAccessibleInterface *announcement = accessible(status)->child(0);
  ASSERT_NE(announcement, nullptr);
  EXPECT_EQ(announcement->role(), QAccessible::Notification);
  EXPECT_EQ(announcement->parent(), accessible(status));
  EXPECT_EQ(accessible(status)->indexOfChild(announcement), 0);
  EXPECT_EQ(accessible(status)->child(1), nullptr);
  interface.popover()->show();
  EXPECT_TRUE(announcement->state().invisible) << "there is nothing to say";
  status->setStringValue("disk0s1 mouted at /media/a");
  EXPECT_EQ(announcement->text(QAccessible::Name), "disk0s1 mouted at /media/a");
  EXPECT_FALSE(announcement->state().invisible);
}

TEST(AccessibleInterfaceTest, EmptyTableGivesWayToItsText) {
  const MainInterface interface;
  interface.emptyView()->setText("No disk service answers", "The list fills as soon as it runs.");
  EXPECT_TRUE(interface.tableView()->isHidden());
  EXPECT_FALSE(interface.emptyView()->isHidden());
  EXPECT_EQ(accessible(interface.emptyView())->child(0)->text(QAccessible::Name),
            "No disk service answers");
}

}  // namespace
