// What the real service's disks look like through the seam.

#include <QFile>
#include <QSet>

#include "disks/DiskTest.h"

class Media : public DiskTest {};

TEST_F(Media, OfAGptDiskAreNamedByTypeAndLabel) {
  const QString disk = addDisk("gpt",
                               "label: gpt\n"
                               "size=16M, type=U, name=\"efi sYSTEM partition\"\n"
                               "size=16M, type=L, name=\"Daten älter 資料\"\n"
                               "size=8M, type=S\n",
                               3);
  format(disk + "p1", "EFI");
  const QString name = nameOf(disk);
  EXPECT_EQ(platform->mediaRegistry().mediaNamesOnDisk(name),
            (QStringList{name, name + "s1", name + "s2", name + "s3"}));
  EXPECT_EQ(value(name, kDADiskDescriptionMediaNameKey), "gpt.img");
  EXPECT_EQ(value(name, kDADiskDescriptionMediaContentKey), "GUID_partition_scheme");
  EXPECT_EQ(value(name + "s1", kDADiskDescriptionMediaNameKey), "EFI System Partition");
  EXPECT_EQ(value(name + "s1", kDADiskDescriptionMediaContentKey),
            "C12A7328-F81F-11D2-BA4B-00A0C93EC93B");
  EXPECT_EQ(value(name + "s2", kDADiskDescriptionMediaNameKey), "Daten älter 資料");
  EXPECT_EQ(value(name + "s3", kDADiskDescriptionMediaNameKey), "Linux swap");
  EXPECT_EQ(value(name + "s1", kDiskDescriptionDeviceNodeKey), disk + "p1");
  EXPECT_EQ(value(name + "s1", kDADiskDescriptionVolumeNameKey), QVariant()) << "not mounted";
  for (const QString &key : {kDADiskDescriptionMediaUUIDKey, kDADiskDescriptionVolumeUUIDKey}) {
    EXPECT_TRUE(value(name + "s1", key).canConvert<DiskUUID>()) << key.toStdString();
  }
  EXPECT_EQ(value(name, kDADiskDescriptionDeviceProtocolKey), "Virtual Interface");
  EXPECT_EQ(value(name, kDADiskDescriptionMediaWritableKey), true);
  EXPECT_EQ(value(name, kDADiskDescriptionMediaEjectableKey), true);
  EXPECT_EQ(value(name, kDADiskDescriptionDeviceInternalKey), false);
}

TEST_F(Media, OfAnMbrDiskAreNamedByType) {
  const QString disk = addDisk("mbr", "label: dos\nsize=16M, type=ef\nsize=8M, type=83\n", 2);
  DiskLab::format(disk + "p1", "vfat", "BOOT");
  const QString name = nameOf(disk);
  EXPECT_TRUE(
      waitFor([&] { return value(name + "s1", kDADiskDescriptionVolumeKindKey) == "msdos"; }));
  EXPECT_EQ(value(name, kDADiskDescriptionMediaContentKey), "FDisk_partition_scheme");
  EXPECT_EQ(value(name + "s1", kDADiskDescriptionMediaNameKey), "EFI System Partition");
  EXPECT_EQ(value(name + "s1", kDADiskDescriptionMediaContentKey), "0xef");
  EXPECT_EQ(value(name + "s1", kDADiskDescriptionVolumeUUIDKey), QVariant()) << "a serial number";
  EXPECT_EQ(value(name + "s2", kDADiskDescriptionMediaNameKey), "Linux filesystem");
}

TEST_F(Media, StandInTheOrderOfTheirUnitsAndSkipEmptyDevices) {
  addDisk("first", "label: gpt\nsize=4M\nsize=4M\n", 2);
  addDisk("second", {}, 0);
  const QStringList names = platform->mediaRegistry().mediaNames();
  QList<std::pair<qint64, int>> places;
  for (const QString &name : names) {
    const qint64 unit = value(name, kDADiskDescriptionMediaBSDUnitKey).toLongLong();
    const int slice = name.section('s', 2).toInt();
    EXPECT_EQ(value(name, kDADiskDescriptionMediaBSDNameKey), name);
    EXPECT_TRUE(name.startsWith(QStringLiteral("disk%1").arg(unit))) << name.toStdString();
    EXPECT_FALSE(value(name, kDADiskDescriptionMediaNameKey).toString().isEmpty());
    places.append({unit, slice});
    const QString device = value(name, kDiskDescriptionDeviceNodeKey).toString();
    QFile size("/sys/class/block/" + device.section('/', -1) + "/size");
    ASSERT_TRUE(size.open(QIODevice::ReadOnly)) << device.toStdString();
    EXPECT_GT(size.readAll().trimmed().toLongLong(), 0) << device.toStdString();
  }
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
  EXPECT_EQ(QSet(names.begin(), names.end()).size(), names.size());
}

TEST_F(Media, OnAnotherDiskInTheSameDeviceHaveAnotherNumber) {
  const QString disk = DiskLab::createDisk("one", 8);
  ASSERT_TRUE(waitFor([&] { return !nameOf(disk).isEmpty(); }));
  const QString before = nameOf(disk);
  DiskLab::remove(disk);
  ASSERT_TRUE(waitFor([&] { return nameOf(disk).isEmpty(); }));
  EXPECT_EQ(platform->diskService().descriptionOfMedia(before), std::nullopt);
  EXPECT_EQ(addDisk("two", {}, 0), disk) << "the same device again";
  EXPECT_NE(nameOf(disk), before);
}
