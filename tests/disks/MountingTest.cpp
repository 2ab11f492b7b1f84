// Mounts and unmounts through the real service.

#include <QFile>
#include <QProcess>

#include "disks/DiskTest.h"
#include "support/VolumeNews.h"

class Mounting : public DiskTest {};

TEST_F(Mounting, UndoneByForceLosesNothing) {
  const QString name = nameOf(addSystemPartition("BUSY"));
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QByteArray text = "what was written before the unmount is on the disk after it";
  QFile file(mountPointOf(name) + "/file");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
  ASSERT_TRUE(file.flush());
  EXPECT_EQ(processesUsing(*platform, mountPointOf(name)),
            QStringList(QString("keldra-disk-tes (%1)").arg(getpid())));
  EXPECT_EQ(unmount(name, DiskService::UnmountOption::Force), kDAReturnSuccess);
  QFile image(DiskLab::imageFile("disk"));
  ASSERT_TRUE(image.open(QIODevice::ReadOnly));
  EXPECT_TRUE(image.readAll().contains(text));
}

TEST_F(Mounting, OfABtrfsSubvolumeIsKnownThoughItHasNoDeviceNumber) {
  const QString disk = DiskLab::createDisk("tree", 256);
  QProcess make;
  make.start("mkfs.btrfs", {"--quiet", "--label", "TREE", disk});
  if (!make.waitForFinished() || make.exitCode() != 0) {
    DiskLab::remove(disk);
    GTEST_SKIP() << "no btrfs here";
  }
  DiskLab::run("udevadm", {"trigger", "--action=change", "--settle", disk});
  EXPECT_TRUE(
      waitFor([&] { return value(nameOf(disk), kDADiskDescriptionVolumeKindKey) == "btrfs"; }));
  const QString name = nameOf(disk);
  EXPECT_EQ(mount(name), kDAReturnSuccess);
  EXPECT_EQ(mountPointOf(name), platform->folders().volumes + "/TREE");
  EXPECT_EQ(unmount(name), kDAReturnSuccess);
  EXPECT_EQ(mountPointOf(name), "");
  DiskLab::remove(disk);
}

// The lazy loop device of mount(8) goes away with its last mount, in the middle of the unmount.
TEST_F(Mounting, OfADeviceThatEndsWithItCanBeUndone) {
  const QString image = DiskLab::imageFile("lazy");
  const QString folder = DiskLab::makeFolder("lazy");
  DiskLab::run("truncate", {"--size", "16M", image});
  DiskLab::run("mkfs.ext4", {"-q", "-F", image});
  DiskLab::run("mount", {"-o", "loop", image, folder});
  ASSERT_TRUE(waitFor([&] { return events.contains("+" + folder); }));
  const auto volume = platform->diskService().descriptionOfVolume(folder);
  ASSERT_TRUE(volume);
  const QString name = volume->value(kDADiskDescriptionMediaBSDNameKey).toString();
  EXPECT_EQ(value(name, kDADiskDescriptionMediaNameKey), "lazy.img");
  EXPECT_EQ(unmount(name), kDAReturnSuccess);
  EXPECT_TRUE(waitFor([&] { return !platform->mediaRegistry().mediaNames().contains(name); }));
  EXPECT_EQ(events.count("-" + folder), 1);
}
