#include <gtest/gtest.h>

#include "Foundation/NotificationCenter.h"
#include "support/TestMachine.h"

using TextColor = TextField::TextColor;

TEST(DiskEvents, ChangesByOtherProgramsAreShownInBlue) {
  TestMachine machine(twoEspMachine());
  machine.platform.mountFromOutside("disk1s1");
  EXPECT_EQ(machine.status(), "disk1s1 mouted at " + machine.folder("EFI"));
  EXPECT_EQ(machine.statusColor(), TextColor::Blue);
  machine.platform.rename("disk1s1", "Boot");
  EXPECT_EQ(machine.status(), machine.folder("EFI") + " renamed!");

  machine.platform.unmountFromOutside("disk1s2");  // not listed; another one of its disk is
  EXPECT_EQ(machine.status(), machine.folder("Data") + " umounted!");
  EXPECT_TRUE(machine.text(1).endsWith("WDC Blue: Boot, Basic data"));

  machine.platform.pull(1);
  machine.platform.plugBack(1);
  EXPECT_EQ(machine.status(), machine.folder("EFI") + " umounted!") << "a plug has no message";
}

TEST(DiskEvents, AForcedUnmountThatMayLoseDataNotifiesTheUser) {
  TestMachine machine(twoEspMachine());
  machine.platform.workspaceNotificationCenter().post(
      {kVolumeUnwrittenNotification, nullptr, {{kNSDevicePathKey, "/media/a"}}});
  ASSERT_EQ(machine.desktop.notifications.size(), 1);
  EXPECT_TRUE(machine.desktop.notifications[0].contains("/media/a did not answer"));
}

TEST(DiskEvents, MessagesAreQueuedButARefusalChangesTheColourAtOnce) {
  TestMachine machine(twoEspMachine());
  TextField *field = machine.interface.statusTextField();
  field->setStringValue("before");
  machine.delegate.mounted(
      {kNSWorkspaceDidMountNotification, nullptr, {{kNSDevicePathKey, "/nowhere"}}});
  NotificationCenter::defaultCenter().post({"arbitrator", nullptr, {}});
  EXPECT_EQ(field->stringValue(), "before");
  EXPECT_EQ(field->textColor(), TextColor::Normal);
  EXPECT_EQ(machine.status(), "(null) mouted at /nowhere");

  NotificationCenter::defaultCenter().post({"arbitrator", nullptr, {{"note", "no"}}});
  EXPECT_EQ(field->stringValue(), "");
  EXPECT_EQ(field->textColor(), TextColor::Red);
  EXPECT_EQ(machine.status(), "no");
}
