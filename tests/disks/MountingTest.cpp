// Mounts and unmounts through the real service.

#include <QStandardPaths>

#include "disks/DiskTest.h"
#include "support/Files.h"

class Mounting : public DiskTest {};

TEST_F(Mounting, AForcedUnmountLosesNoData) {
  const QString name = nameOf(addSystemPartition("BUSY"));
  ASSERT_TRUE(mount(name));
  const QByteArray text = "what was written before the unmount is on the disk after it";
  QFile file(mountPointOf(name) + "/file");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
  ASSERT_TRUE(file.flush());
  EXPECT_TRUE(unmount(name, true));
  EXPECT_TRUE(contentOf(DiskLab::file("disk.img")).contains(text));
}

TEST_F(Mounting, ABtrfsSubvolumeIsFoundWithoutADeviceNumber) {
  if (QStandardPaths::findExecutable("mkfs.btrfs").isEmpty()) GTEST_SKIP() << "no btrfs here";
  const QString disk = DiskLab::createDisk("tree", 256);
  DiskLab::run("mkfs.btrfs", {"--quiet", "--label", "TREE", disk});
  DiskLab::run("udevadm", {"trigger", "--action=change", "--settle", disk});
  EXPECT_TRUE(
      waitFor([&] { return value(nameOf(disk), kDADiskDescriptionVolumeKindKey) == "btrfs"; }));
  EXPECT_TRUE(mount(nameOf(disk)));
  EXPECT_EQ(mountPointOf(nameOf(disk)), platform->folders().volumes + "/TREE");
  EXPECT_TRUE(unmount(nameOf(disk)));
  EXPECT_EQ(mountPointOf(nameOf(disk)), "");
  DiskLab::pull(disk);
}

TEST_F(Mounting, AMountIsSeenByKeldraQuery) {
  const QString device = addSystemPartition("OUTSIDE");
  const QString name = nameOf(device);
  const auto queried = [](const QStringList &words) {
    return DiskLab::run(QCoreApplication::applicationDirPath() + "/keldra-query", words).trimmed();
  };
  const QByteArray size = DiskLab::run("blockdev", {"--getpbsz", device}).trimmed();
  EXPECT_EQ(queried({"findSectorSize", name}), "\"Physical " + size + "-bytes\"");
  ASSERT_TRUE(mount(name));
  EXPECT_EQ(queried({"findBSDName", mountPointOf(name)}), "\"" + name.toUtf8() + "\"");
}
