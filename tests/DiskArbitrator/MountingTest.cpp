#include <gtest/gtest.h>

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/daStatus.h"
#include "Foundation/NotificationCenter.h"
#include "support/TestMachine.h"

namespace {

class Mounting : public testing::Test {
 protected:
  Mounting() {
    NotificationCenter::defaultCenter().addObserver(
        &_observer, kArbitratorNotification, [this](const Notification &notification) {
          EXPECT_EQ(notification.object, DiskArbitrator::sender());
          notes += notification.userInfo.value("note").toString();
        });
  }

  TestPlatform machine{twoEspMachine()};
  QStringList notes;

 private:
  QObject _observer;
};

}  // namespace

TEST_F(Mounting, SucceedsWithoutARequestWhenThereIsNothingToDo) {
  machine.platform.setRefusals("disk1s2", kDAReturnError, kDAReturnError);
  EXPECT_TRUE(DiskArbitrator::mountPartition("disk1s2", std::nullopt));
  machine.platform.setRefusals("disk1s1", kDAReturnError, kDAReturnError);
  EXPECT_TRUE(DiskArbitrator::umountPartition("disk1s1", false));
  EXPECT_TRUE(notes.isEmpty());
}

TEST_F(Mounting, UsesTheServicesChoiceOrANewFolderThatIsNotInUse) {
  const QString deep = machine.folder("new/inner");
  EXPECT_TRUE(DiskArbitrator::mountPartition("disk0s1", deep));
  EXPECT_EQ(DiskArbitrator::findBSDName(deep), "disk0s1");
  EXPECT_FALSE(DiskArbitrator::mountPartition("disk1s1", machine.folder("Data//.")));
  EXPECT_TRUE(DiskArbitrator::mountPartition("disk1s2", machine.folder("Data/")));
  EXPECT_FALSE(DiskArbitrator::isMountPointValid("disk1s1"));
  EXPECT_TRUE(notes.isEmpty());
  EXPECT_TRUE(DiskArbitrator::mountPartition("disk1s1", QString("")));
  EXPECT_EQ(DiskArbitrator::findMountPoint("disk1s1"), machine.folder("EFI"));
}

TEST_F(Mounting, ARefusalIsAnnouncedOnce) {
  machine.platform.setRefusals("disk1s1", unixErrorStatus(ECANCELED), std::nullopt);
  EXPECT_FALSE(DiskArbitrator::mountPartition("disk1s1", std::nullopt));
  machine.platform.setRefusals("disk1s2", std::nullopt, kDAReturnBusy);
  EXPECT_TRUE(DiskArbitrator::umountPartition("disk1s2", false));
  machine.platform.setPresence(DiskService::Presence::Absent);
  EXPECT_FALSE(DiskArbitrator::mountPartition("disk1s1", std::nullopt));
  DiskArbitrator::sendNotificationWithMessage(QString());
  EXPECT_EQ(notes, QStringList({"mount failed for disk1s1, status Operation canceled",
                                "umount failed for disk1s2, reason: busy",
                                "mount failed for (null), status not ready"}));
}

TEST(daStatus, HasWordsForEveryNumber) {
  EXPECT_STREQ(daStatus(kDAReturnError), "error");
  EXPECT_STREQ(daStatus(kDAReturnUnsupported), "unsupported");
  for (const DissenterStatus outside : {0xF8DA0000U, 0xF8DA000DU, kDAReturnSuccess, 0x1C00DU}) {
    EXPECT_STREQ(daStatus(outside), "unknown error") << outside;
  }
}
