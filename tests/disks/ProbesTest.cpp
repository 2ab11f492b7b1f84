// What the service and the kernel say of a real file system and device.

#include "DiskArbitrator/DiskArbitrator.h"
#include "disks/DiskTest.h"

namespace {

class Probes : public DiskTest {};

QByteArray queried(const QStringList &words) {
  return DiskLab::run(QCoreApplication::applicationDirPath() + "/keldra-query", words).trimmed();
}

}  // namespace

// No kernel is needed that mounts FAT: it is written over a file system while that is mounted.
TEST_F(Probes, TellTheWidthOfFATAsTheServiceReadsIt) {
  const QString device = addSystemPartition("COVERED");
  const QString name = nameOf(device);
  const CurrentPlatform current(*platform);
  EXPECT_EQ(DiskArbitrator::findFileSystemPersonality(name), "ext4");
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  for (const char *width : {"12", "16", "32"}) {
    const QString image = DiskLab::imageFile(width);
    DiskLab::run("mkfs.vfat", {"-F", width, "-C", image, "16384"});
    DiskLab::run("dd", {"if=" + image, "of=" + device, "bs=64K", "count=1", "conv=fsync"});
    DiskLab::run("udevadm", {"trigger", "--action=change", "--settle", device});
    const QString answer = QString("Fat") + width;
    EXPECT_TRUE(waitFor([&] {
      return value(name, kDADiskDescriptionVolumeKindKey) == "msdos" &&
             DiskArbitrator::findFileSystemPersonality(name) == answer;
    })) << DiskArbitrator::findFileSystemPersonality(name).value_or("").toStdString();
  }
}

TEST_F(Probes, AreAnsweredFromOutside) {
  const QString device = addSystemPartition("OUTSIDE");
  const QString name = nameOf(device);
  const QByteArray size = DiskLab::run("blockdev", {"--getpbsz", device}).trimmed();
  EXPECT_EQ(queried({"findSectorSize", name}), "\"Physical " + size + "-bytes\"");
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  EXPECT_EQ(queried({"findBSDName", mountPointOf(name)}), "\"" + name.toUtf8() + "\"");
}
