// What a screen reader, or a test from outside, finds.

#include <QAccessible>

#include "Interface/MainInterface.h"
#include "Interface/TableFixture.h"

namespace {

QAccessibleInterface *accessible(QObject *object) {
  return QAccessible::queryAccessibleInterface(object);
}

class AccessibleTableTest : public TableFixture {};

TEST_F(AccessibleTableTest, StaleIndicesFindNothing) {
  show(manyRows(100));
  QAccessibleInterface *list = accessible(table);
  const int before = list->childCount();
  reload(manyRows(1));
  for (const int index : {-1, 1, before - 1}) EXPECT_EQ(list->child(index), nullptr);
  for (const int index : {-1, 1, 5}) EXPECT_EQ(list->child(0)->child(index), nullptr);
}

TEST_F(AccessibleTableTest, SelectedRowHasTheFocus) {
  show(manyRows(3));
  table->setFocus();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  QAccessibleInterface *list = accessible(table);
  EXPECT_TRUE(list->child(1)->state().selected);
  EXPECT_FALSE(list->child(0)->state().selected);
  EXPECT_EQ(list->focusChild(), list->child(1));
}

TEST(AccessibleStatusTest, IsALabelAndAnnouncesWhatItSaysWhileItIsSeen) {
  const MainInterface interface;
  TextField *status = interface.statusTextField();
  QAccessibleInterface *announcement = accessible(status)->child(0);
  ASSERT_NE(announcement, nullptr);
  EXPECT_EQ(announcement->role(), QAccessible::Notification);
  status->setStringValue("said before it can be seen");
  interface.popover()->show();
  EXPECT_TRUE(announcement->state().invisible);
  status->setStringValue("disk0s1 mouted at /media/a");
  for (QAccessibleInterface *heard : {accessible(status), announcement}) {
    EXPECT_EQ(heard->text(QAccessible::Name), "disk0s1 mouted at /media/a");
  }
  EXPECT_FALSE(announcement->state().invisible);
  interface.popover()->close();
  interface.popover()->show();
  EXPECT_TRUE(announcement->state().invisible) << "it has been said";
}

}  // namespace
