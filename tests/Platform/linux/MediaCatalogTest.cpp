#include "Platform/linux/MediaCatalog.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <QDBusObjectPath>

#include "Platform/linux/ServiceMachine.h"

namespace {

const QString kEspType = "c12a7328-f81f-11d2-ba4b-00a0c93ec93b";

/// Media as the service's objects make them.
class MediaCatalogTest : public testing::Test {
 public:
  bool update() {
    const auto paths = machine.objects.keys();
    return catalog.update(machine.objects, {paths.begin(), paths.end()});
  }
  bool update(const QString &path) { return catalog.update(machine.objects, {path}); }

  QVariant value(const QString &name, const QString &key) {
    const Medium *medium = catalog.named(name);
    return medium == nullptr ? QVariant("no such medium") : medium->description.value(key);
  }
  QString mediaName(const QString &name) {
    return value(name, kDADiskDescriptionMediaNameKey).toString();
  }

  ServiceMachine machine;
  MediaCatalog catalog = machine.catalog();
};

}  // namespace

TEST_F(MediaCatalogTest, NamesMediaByDiskAndSlice) {
  const auto second = machine.addDisk("sdb", 16);
  const auto first = machine.addDisk("sda", 1);
  for (const int number : {10, 2, 1}) machine.addPartition(first, number, kEspType, "");
  machine.addPartition(second, 1, kEspType, "");
  EXPECT_TRUE(update());
  EXPECT_EQ(catalog.names(),
            (QStringList{"disk0", "disk0s1", "disk0s2", "disk0s10", "disk1", "disk1s1"}));
  EXPECT_EQ(catalog.namesOnDisk("disk1"), (QStringList{"disk1", "disk1s1"}));
  EXPECT_EQ(catalog.namesOnDisk("disk1s1"), QStringList{});
  EXPECT_EQ(value("disk0s10", kDADiskDescriptionMediaBSDUnitKey), QVariant(qint64{0}));
  EXPECT_EQ(catalog.onDevice(makedev(8, 16)), catalog.named("disk1"));
  EXPECT_FALSE(update()) << "nothing has changed";
}

TEST_F(MediaCatalogTest, NamesPartitionsByTypeThenNameThenPurpose) {
  const auto disk = machine.addDisk("sda", 1);
  machine.addPartition(disk, 1, kEspType, "efi sYSTEM partition");
  machine.addPartition(disk, 2, kEspType.toUpper(), "");
  machine.addPartition(disk, 3, "0xEF", "");
  machine.addPartition(disk, 4, "0fc63daf-8483-4772-8e79-3d69d8477de4", "Dáten & <b>");
  machine.addPartition(disk, 5, "0fc63daf-8483-4772-8e79-3d69d8477de4", " ");
  machine.addPartition(disk, 6, "0x82", "");
  machine.addPartition(disk, 7, "unheard of", "");
  machine.addPartition(disk, 8, "0x8", "");
  update();
  for (const char *name : {"disk0s1", "disk0s2", "disk0s3"}) {
    EXPECT_EQ(mediaName(name), "EFI System Partition") << name;
  }
  EXPECT_EQ(mediaName("disk0s4"), "Dáten & <b>");
  EXPECT_EQ(mediaName("disk0s5"), "Linux filesystem");
  EXPECT_EQ(mediaName("disk0s6"), "Linux swap");
  EXPECT_EQ(mediaName("disk0s7"), "Partition");
  EXPECT_EQ(mediaName("disk0s8"), "Partition");
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionMediaContentKey), kEspType.toUpper());
  EXPECT_EQ(value("disk0s6", kDADiskDescriptionMediaContentKey), "0x82");
}

TEST_F(MediaCatalogTest, NamesDisksByDriveFileOrMapping) {
  const auto drive = [&](const QString &disk, const QString &vendor, const QString &model) {
    machine.addDrive(disk, {{"Vendor", vendor}, {"Model", model}});
  };
  drive(machine.addDisk("sda", 1), " ACME ", " Disk 9 ");
  drive(machine.addDisk("sdb", 2), "Samsung", "SAMSUNG SSD 990");
  drive(machine.addDisk("sdc", 3), "", "");
  const auto mapped = machine.addDisk("dm-0", 4);
  machine.set(mapped, kBlockInterface, "PreferredDevice", QByteArray("/dev/mapper/vg-root\0", 20));
  machine.addLoop("loop0", 5, "/images/b\xff lank.img");
  update();
  EXPECT_EQ(mediaName("disk0"), "ACME Disk 9");
  EXPECT_EQ(mediaName("disk1"), "SAMSUNG SSD 990");
  EXPECT_EQ(mediaName("disk2"), "sdc");
  EXPECT_EQ(mediaName("disk3"), "vg-root");
  EXPECT_EQ(mediaName("disk4"), QString::fromUtf8("b\xef\xbf\xbd lank.img"));
  EXPECT_EQ(value("disk4", kDADiskDescriptionDeviceProtocolKey), "Virtual Interface");
  EXPECT_EQ(value("disk3", kDiskDescriptionDeviceNodeKey), "/dev/mapper/vg-root");
}

TEST_F(MediaCatalogTest, TakesTheDrivesPropertiesForDiskAndPartitions) {
  const auto disk = machine.addDisk("sda", 1);
  machine.addPartition(disk, 1, kEspType, "");
  const auto drive = machine.addDrive(disk, {{"ConnectionBus", "usb"}, {"Removable", true}});
  machine.set(disk, kBlockInterface, "ReadOnly", true);
  update();
  for (const char *name : {"disk0", "disk0s1"}) {
    EXPECT_EQ(value(name, kDADiskDescriptionDeviceProtocolKey), "USB") << name;
    EXPECT_EQ(value(name, kDADiskDescriptionDeviceInternalKey), false) << name;
    EXPECT_EQ(value(name, kDADiskDescriptionMediaEjectableKey), true) << name;
  }
  EXPECT_EQ(value("disk0", kDADiskDescriptionMediaWritableKey), false);
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionMediaWritableKey), true);

  machine.set(drive, kDriveInterface, "ConnectionBus", "sdio");
  EXPECT_TRUE(update(drive));
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionDeviceProtocolKey), "Secure Digital");
}

TEST_F(MediaCatalogTest, PicksThePictureOfTheMedium) {
  const auto pictureOf = [&](const QString &name) {
    return value(name, kDADiskDescriptionMediaIconKey).toMap().value(kMediaIconFileKey);
  };
  machine.addDrive(machine.addDisk("sda", 1), {{"ConnectionBus", ""}});
  machine.addDrive(machine.addDisk("sdb", 2), {{"ConnectionBus", "usb"}});
  machine.addDrive(machine.addDisk("sdc", 3), {{"MediaRemovable", true}});
  machine.addDrive(machine.addDisk("sr0", 4), {{"Optical", true}, {"Removable", true}});
  machine.addPartition(machine.addDisk("md0", 5), 1, kEspType, "");
  machine.addLoop("loop0", 6, "/images/a.img");
  update();
  EXPECT_EQ(pictureOf("disk0"), "Internal.icns");
  EXPECT_EQ(pictureOf("disk1"), "Removable.icns");
  EXPECT_EQ(pictureOf("disk2"), "Removable.icns");
  EXPECT_EQ(pictureOf("disk3s1"), "Internal.icns");
  EXPECT_EQ(pictureOf("disk4"), "DiskImage.icns");
  EXPECT_EQ(pictureOf("disk5"), "Optical.icns");
}

TEST_F(MediaCatalogTest, DescribesTheVolume) {
  const auto disk = machine.addDisk("sda", 1);
  const auto fat = machine.addPartition(disk, 1, kEspType, "");
  const auto ext4 = machine.addPartition(disk, 2, "0x83", "");
  const auto swap = machine.addPartition(disk, 3, "0x82", "");
  const auto volume = [&](const QString &path, const QString &type, const QString &uuid) {
    machine.set(path, kBlockInterface, "IdType", type);
    machine.set(path, kBlockInterface, "IdUUID", uuid);
  };
  const QString uuid = "6f9619ff-8b86-d011-b42d-00cf4fc964ff";
  volume(fat, "vfat", "1234-ABCD");
  volume(ext4, "ext4", uuid);
  volume(swap, "swap", uuid);
  for (const QString &path : {fat, ext4}) machine.objects[path].add({{kFilesystemInterface, {}}});
  machine.set(disk, kPartitionTableInterface, "Type", "gpt");
  update();
  EXPECT_EQ(value("disk0", kDADiskDescriptionMediaContentKey), "GUID_partition_scheme");
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionVolumeKindKey), "msdos");
  EXPECT_EQ(value("disk0s1", kDADiskDescriptionVolumeUUIDKey), QVariant()) << "a serial number";
  EXPECT_EQ(value("disk0s2", kDADiskDescriptionVolumeKindKey), "ext4");
  const auto found = value("disk0s2", kDADiskDescriptionVolumeUUIDKey).value<DiskUUID>();
  EXPECT_TRUE(found.description().endsWith("> " + uuid.toUpper()));
  EXPECT_EQ(value("disk0s3", kDADiskDescriptionVolumeKindKey), QVariant());
  EXPECT_EQ(value("disk0s3", kDADiskDescriptionVolumeUUIDKey), QVariant());
}

TEST_F(MediaCatalogTest, LeavesOutWhatHoldsNothing) {
  machine.addLoop("loop0", 1, "");
  machine.addDisk("zram0", 2);
  machine.set(machine.addDisk("sr0", 3), kBlockInterface, "Size", 0ULL);
  machine.set(machine.addDisk("sdb", 5), kBlockInterface, "DeviceNumber", "8:5");
  const auto ignored = machine.addDisk("sda", 4);
  machine.set(ignored, kBlockInterface, "HintIgnore", true);
  update();
  EXPECT_EQ(catalog.names(), QStringList{"disk0"});
  EXPECT_EQ(mediaName("disk0"), "sda");
}

TEST_F(MediaCatalogTest, WaitsForTheDiskOfAPartition) {
  const auto disk = machine.addDisk("sda", 1);
  const auto partition = machine.addPartition(disk, 1, kEspType, "");
  const ServiceObject later = machine.objects.take(disk);
  EXPECT_FALSE(update(partition));
  machine.objects.insert(disk, later);
  EXPECT_TRUE(update(disk));
  EXPECT_EQ(catalog.names(), (QStringList{"disk0", "disk0s1"}));
  machine.objects.remove(disk);
  EXPECT_TRUE(update(disk));
  EXPECT_EQ(catalog.names(), QStringList{});
}
