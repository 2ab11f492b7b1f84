// Names and descriptions of media, from the service's data.

#include "Foundation/Paths.h"
#include "Platform/linux/LinuxRawDevices.h"
#include "service/ServiceTest.h"

namespace {

class Media : public ServiceTest {
 public:
  /// Starts the program with the present tree.
  void look() {
    service.appear();
    startProgram();
    ASSERT_TRUE(waitFor([&] { return !names().isEmpty(); }));
  }
};

}  // namespace

TEST_F(Media, OfPartitionsAreNamedByTypeThenNameThenPurpose) {
  const struct {
    const char *type;
    const char *label;
    const char *name;
  } kRows[] = {
      {"c12a7328-f81f-11d2-ba4b-00a0c93ec93b", "efi sYSTEM partition", "EFI System Partition"},
      {"0xEF", "", "EFI System Partition"},
      {"0fc63daf-8483-4772-8e79-3d69d8477de4", "Dáten & <b>", "Dáten & <b>"},
      {"unheard of", "", "Partition"},
  };
  const QString parent = service.addDisk("sdb", 32);
  uint number = 8;
  for (const auto &row : kRows) {
    ++number;
    const QString path = service.addPartition(parent, number, 32 + number);
    service.tree[path][kPartitionInterface].insert(
        QVariantMap{{"Type", row.type}, {"Name", QString(row.label)}});
    service.tree[path].remove(kFilesystemInterface);
  }
  service.tree[parent][kPartitionTableInterface]["Type"] = "dos";
  service.tree[data][kBlockInterface].insert(
      {{"IdType", "vfat"}, {"IdVersion", "FAT16"}, {"IdUUID", "12AB-34CD"}});
  look();
  number = 8;
  for (const auto &row : kRows) {
    const QString name = "disk1s" + QString::number(++number);
    EXPECT_EQ(value(name, kDADiskDescriptionMediaNameKey), row.name);
    EXPECT_EQ(value(name, kDADiskDescriptionVolumeKindKey), QVariant()) << "nothing to mount";
  }
  EXPECT_EQ(value("disk1s9", kDADiskDescriptionMediaContentKey),
            "C12A7328-F81F-11D2-BA4B-00A0C93EC93B");
  EXPECT_EQ(value("disk1s10", kDADiskDescriptionMediaContentKey), "0xEF");
  EXPECT_EQ(value("disk1", kDADiskDescriptionMediaContentKey), "FDisk_partition_scheme");
  EXPECT_EQ(value("disk0s2", kDADiskDescriptionVolumeKindKey), "msdos");
  EXPECT_EQ(LinuxRawDevices(*disks).fileSystemSubtype(mountPoint), 1U) << "the FAT width";
  EXPECT_EQ(value("disk0s2", kDADiskDescriptionVolumeUUIDKey), QVariant()) << "not a UUID";
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionMediaEjectableKey), true);
  service.change(kServiceRoot + "/drives/sda", kDriveInterface, "ConnectionBus", "sdio");
  settle();
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionDeviceProtocolKey), "Secure Digital");
  EXPECT_EQ(names().mid(3, 3), (QStringList{"disk1", "disk1s9", "disk1s10"})) << "in order";
}

TEST_F(Media, OfDisksGetNameAndPictureFromDriveFileOrMapping) {
  const struct {
    const char *device;
    QVariantMap drive;
    const char *name;
    const char *picture;
    QVariant protocol;
  } kRows[] = {
      {"sdb", {{"Vendor", " ACME "}, {"Model", " Disk 9 "}}, "ACME Disk 9", "Internal.icns", {}},
      {"sdc",
       {{"Vendor", "Samsung"}, {"Model", "SAMSUNG SSD 990"}, {"ConnectionBus", "usb"}},
       "SAMSUNG SSD 990",
       "Removable.icns",
       "USB"},
      {"md0", {}, "vg-root", "Internal.icns", {}},
      {"loop0", {}, "b\xff.img", "DiskImage.icns", "Virtual Interface"},
      {"sr0", {{"Optical", true}, {"Removable", true}}, "sr0", "Optical.icns", {}},
  };
  uint minorNumber = 100;
  for (const auto &row : kRows) {
    service.addDisk(row.device, ++minorNumber);
    service.tree[kServiceRoot + "/drives/" + row.device] = {{kDriveInterface, row.drive}};
  }
  const QString devices = kServiceRoot + "/block_devices/";
  service.tree[devices + "md0"][kBlockInterface]["PreferredDevice"] =
      QByteArray("/dev/md/vg-root\0", 16);
  service.tree[devices + "loop0"][kLoopInterface]["BackingFile"] =
      QByteArray("/images/b\xff.img\0rest", 19);
  // Disks that hold nothing.
  service.tree[service.addDisk("loop1", 32)][kLoopInterface]["BackingFile"] = QByteArray("\0", 1);
  service.addDisk("zram0", 33);
  service.tree[service.addDisk("sr1", 34)][kBlockInterface]["Size"] = 0ULL;
  look();
  EXPECT_EQ(names().size(), 3 + std::ssize(kRows));
  int unit = 0;
  for (const auto &row : kRows) {
    const QString name = "disk" + QString::number(++unit);
    EXPECT_EQ(value(name, kDADiskDescriptionMediaNameKey), pathFromBytes(row.name));
    EXPECT_EQ(value(name, kDADiskDescriptionDeviceProtocolKey), row.protocol) << row.name;
    EXPECT_EQ(value(name, kDADiskDescriptionMediaIconKey).toMap().value(kMediaIconFileKey),
              row.picture);
  }
}
