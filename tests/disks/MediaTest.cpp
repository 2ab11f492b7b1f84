// What the real service's disks look like through the seam.

#include "disks/DiskTest.h"

namespace {

class Media : public DiskTest {
 public:
  void expectNames(const QString &disk, const QStringList &expected) const {
    QStringList names;
    for (const QString &name : platform->mediaRegistry().mediaNamesOnDisk(nameOf(disk))) {
      names << value(name, kDADiskDescriptionMediaNameKey).toString();
    }
    EXPECT_EQ(names, expected);
  }
};

}  // namespace

TEST_F(Media, OfAGptDiskAreNamedByTypeAndLabel) {
  const QString disk = addDisk("gpt",
                               "label: gpt\n"
                               "size=16M, type=U, name=\"efi sYSTEM partition\"\n"
                               "size=16M, type=L, name=\"Daten älter 資料\"\n"
                               "size=8M, type=S\n",
                               3);
  format(disk + "p1", "EFI");
  expectNames(disk, {"gpt.img", "EFI System Partition", "Daten älter 資料", "Linux swap"});
  const QString name = nameOf(disk) + "s1";
  EXPECT_EQ(value(name, kDADiskDescriptionMediaContentKey), "C12A7328-F81F-11D2-BA4B-00A0C93EC93B");
  EXPECT_EQ(value(name, kDiskDescriptionDeviceNodeKey), disk + "p1");
  EXPECT_TRUE(value(name, kDADiskDescriptionVolumeUUIDKey).canConvert<DiskUUID>());
  EXPECT_EQ(value(name, kDADiskDescriptionMediaEjectableKey), true);
  EXPECT_EQ(value(name, kDADiskDescriptionDeviceInternalKey), false);
}

TEST_F(Media, OfAnMbrDiskAreNamedByType) {
  const QString disk = addDisk("mbr", "label: dos\nsize=16M, type=ef\nsize=8M, type=83\n", 2);
  DiskLab::format(disk + "p1", "vfat", "BOOT");
  const QString name = nameOf(disk) + "s1";
  EXPECT_TRUE(waitFor([&] { return value(name, kDADiskDescriptionVolumeKindKey) == "msdos"; }));
  expectNames(disk, {"mbr.img", "EFI System Partition", "Linux filesystem"});
  EXPECT_EQ(value(nameOf(disk), kDADiskDescriptionMediaContentKey), "FDisk_partition_scheme");
  EXPECT_EQ(value(name, kDADiskDescriptionMediaContentKey), "0xef");
  EXPECT_EQ(value(name, kDADiskDescriptionVolumeUUIDKey), QVariant()) << "a serial number";
}

TEST_F(Media, OnAnotherDiskInTheSameDeviceHaveAnotherNumber) {
  const QString disk = DiskLab::createDisk("one", 8);
  ASSERT_TRUE(waitFor([&] { return !nameOf(disk).isEmpty(); }));
  const QString before = nameOf(disk);
  DiskLab::remove(disk);
  ASSERT_TRUE(waitFor([&] { return nameOf(disk).isEmpty(); }));
  EXPECT_EQ(addDisk("two", {}, 0), disk) << "the same device again";
  EXPECT_NE(nameOf(disk), before);
}
