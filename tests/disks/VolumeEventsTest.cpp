// What is told of volumes when others do something with them.

#include <QFile>

#include "disks/DiskTest.h"

class Volumes : public DiskTest {};

// udev is told that the device was removed; the kernel goes on showing the mount.
TEST_F(Volumes, OfAPulledDiskAreNotMountedThoughTheKernelStillShowsThem) {
  const QString device = addSystemPartition("STALE");
  const QString name = nameOf(device);
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QString path = mountPointOf(name);
  DiskLab::stopService();
  ASSERT_TRUE(waitForPresence(DiskService::Presence::Absent));
  DiskLab::startService();
  ASSERT_TRUE(waitFor([&] { return nameOf(device) == name; }));
  events.clear();
  const QString other = DiskLab::makeFolder("second");
  DiskLab::run("mount", {"--bind", path, other});
  ASSERT_TRUE(waitFor([&] { return volumeEvents() == QStringList{"+" + other}; }));
  DiskLab::run("udevadm", {"trigger", "--action=remove", "--settle", device});
  ASSERT_TRUE(waitFor([&] { return nameOf(device).isEmpty(); }));
  EXPECT_TRUE(waitFor([&] { return volumeEvents().size() == 3; }));
  EXPECT_EQ(volumeEvents().mid(1), (QStringList{"-" + path, "-" + other}));
  EXPECT_EQ(platform->diskService().descriptionOfVolume(other), std::nullopt);
}

TEST_F(Volumes, OnADiskThatComesOrGoesUnmountedAreNoNews) {
  const QString disk = addDisk("quiet", "label: gpt\nsize=4M\nsize=4M\n", 2);
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  events.clear();
  removeDisk(disk);
  EXPECT_TRUE(waitFor([&] { return nameOf(disk).isEmpty() && events.contains("changed"); }));
  EXPECT_EQ(volumeEvents(), QStringList{});
}
