// A disk service that dies, hangs, is absent or comes late.

#include "disks/DiskTest.h"

using Presence = DiskService::Presence;

class Service : public DiskTest {};

TEST_F(Service, KilledWhileIdleComesBackUnnoticed) {
  const QString name = nameOf(addSystemPartition("IDLE"));
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QString path = mountPointOf(name);
  const QStringList names = platform->mediaRegistry().mediaNames();
  events.clear();
  for (int i = 0; i < 3; ++i) {
    DiskLab::killService();
    DiskLab::startService();
    EXPECT_TRUE(waitFor([&] {
      EXPECT_EQ(platform->diskService().presence(), Presence::Answering);
      return platform->mediaRegistry().mediaNames() == names && mountPointOf(name) == path;
    }));
  }
  EXPECT_EQ(volumeEvents(), QStringList{});
  EXPECT_TRUE(waitFor([&] { return unmount(name) == kDAReturnSuccess; }));
  EXPECT_EQ(volumeEvents(), QStringList{"-" + path});
}

TEST_F(Service, AbsentAtTheStartMayComeLate) {
  const QString device = addSystemPartition("LATE");
  const QString name = nameOf(device);
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QString path = mountPointOf(name);
  DiskLab::stopService();
  startPlatform();
  EXPECT_EQ(platform->diskService().presence(), Presence::Asking);
  EXPECT_EQ(platform->mediaRegistry().mediaNames(), QStringList{});
  EXPECT_EQ(mount(name), kDAReturnNotReady);
  EXPECT_TRUE(waitForPresence(Presence::Absent));
  EXPECT_TRUE(waitFor([&] { return events == QStringList{"changed"}; }));

  events.clear();
  DiskLab::startService();
  EXPECT_TRUE(waitForPresence(Presence::Answering));
  EXPECT_TRUE(waitFor([&] { return mountPointOf(name) == path; })) << "the same name";
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(volumeEvents(), QStringList{}) << "a mount from before is no news";

  DiskLab::stopService();
  ASSERT_TRUE(waitForPresence(Presence::Absent));
  DiskLab::run("umount", {device});
  EXPECT_TRUE(waitFor([&] { return volumeEvents() == QStringList{"-" + path}; }))
      << "that it is absent is no reason to be silent";
}
