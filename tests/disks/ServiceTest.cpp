// A disk service that dies, hangs, is absent or comes late.

#include "disks/DiskTest.h"

using Presence = DiskService::Presence;

class Service : public DiskTest {};

TEST_F(Service, KilledWhileIdleComesBackUnnoticed) {
  const QString device = addSystemPartition("IDLE");
  const QString name = nameOf(device);
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QString path = mountPointOf(name);
  const QStringList names = platform->mediaRegistry().mediaNames();
  events.clear();
  const auto isBack = [&] {
    return platform->mediaRegistry().mediaNames() == names && mountPointOf(name) == path;
  };
  DiskLab::killService();
  ASSERT_TRUE(waitForPresence(Presence::Absent));
  DiskLab::startService();
  EXPECT_TRUE(waitFor(isBack));
  for (int i = 0; i < 10; ++i) {
    DiskLab::killService();
    DiskLab::startService();
    EXPECT_TRUE(waitFor([&] {
      EXPECT_EQ(platform->diskService().presence(), Presence::Answering);
      return isBack();
    }));
  }
  EXPECT_EQ(volumeEvents(), QStringList{});
  EXPECT_TRUE(waitFor([&] { return unmount(name) == kDAReturnSuccess; }));
  EXPECT_EQ(volumeEvents(), QStringList{"-" + path});
}

TEST_F(Service, KilledDuringACallIsNotReady) {
  const QString name = nameOf(addSystemPartition("CALL"));
  for (const auto option :
       {DiskService::UnmountOption::Default, DiskService::UnmountOption::Force}) {
    DiskLab::freezeService();
    QList<DissenterStatus> answers;
    const auto answer = [&](const auto &dissenter) {
      answers << (dissenter ? dissenter->status : kDAReturnSuccess);
    };
    platform->diskService().mount(name, std::nullopt, answer);
    platform->diskService().unmount(name, option, answer);
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, QList<DissenterStatus>{});
    DiskLab::killService();
    EXPECT_TRUE(waitFor([&] { return answers.size() == 2; }));
    EXPECT_EQ(answers, (QList{kDAReturnNotReady, kDAReturnNotReady}));

    ASSERT_TRUE(waitForPresence(Presence::Absent));
    EXPECT_EQ(mount(name), kDAReturnNotReady);
    DiskLab::startService();
    ASSERT_TRUE(waitFor([&] { return platform->mediaRegistry().mediaNames().contains(name); }));
    EXPECT_EQ(answers.size(), 2);
  }
  EXPECT_EQ(mount(name), kDAReturnSuccess);
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
}

TEST_F(Service, AbsentWhileAVolumeIsUnmountedIsNoReasonToBeSilent) {
  const QString device = addSystemPartition("GONE");
  ASSERT_EQ(mount(nameOf(device)), kDAReturnSuccess);
  const QString path = mountPointOf(nameOf(device));
  DiskLab::stopService();
  ASSERT_TRUE(waitForPresence(Presence::Absent));
  events.clear();
  DiskLab::run("umount", {device});
  EXPECT_TRUE(waitFor([&] { return volumeEvents() == QStringList{"-" + path}; }));
}
