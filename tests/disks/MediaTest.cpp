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

TEST_F(Media, AreNamedByTypeAndLabelInBothKindsOfTables) {
  const QString gpt = addDisk("gpt",
                              "label: gpt\n"
                              "size=16M, type=U, name=\"efi sYSTEM partition\"\n"
                              "size=16M, type=L, name=\"Daten älter 資料\"\n",
                              2);
  format(gpt + "p1", "EFI");
  expectNames(gpt, {"gpt.img", "EFI System Partition", "Daten älter 資料"});
  EXPECT_TRUE(value(nameOf(gpt + "p1"), kDADiskDescriptionVolumeUUIDKey).canConvert<DiskUUID>());

  const QString mbr = addDisk("mbr", "label: dos\nsize=16M, type=ef\n", 1);
  DiskLab::format(mbr + "p1", "vfat", "BOOT");
  const QString name = nameOf(mbr + "p1");
  EXPECT_TRUE(waitFor([&] { return value(name, kDADiskDescriptionVolumeKindKey) == "msdos"; }));
  expectNames(mbr, {"mbr.img", "EFI System Partition"});
  EXPECT_EQ(value(nameOf(mbr), kDADiskDescriptionMediaContentKey), "FDisk_partition_scheme");
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
