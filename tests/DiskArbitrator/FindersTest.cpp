#include <gtest/gtest.h>

#include <QFile>

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"
#include "support/TestMachine.h"

namespace {

using DA = DiskArbitrator;

class Finders : public testing::Test {
 protected:
  TestPlatform machine{twoEspMachine()};
};

}  // namespace

TEST_F(Finders, AcceptNamesDevicePathsAndMountPoints) {
  const QString path = machine.folder("Data");
  const QString link = machine.folder("link");
  ASSERT_TRUE(QFile::link(path, link));
  for (const QString &reference : {QString("disk1s2"), QString("/dev/disk1s2"), path, path + "//.",
                                   link + '/', machine.folder("../Volumes/Data")}) {
    EXPECT_EQ(DA::findBSDName(reference), "disk1s2") << reference.toStdString();
    EXPECT_EQ(DA::findBSDdiskParent(reference), "disk1");
    EXPECT_EQ(DA::findSliceNumberFromPartitionDisk(reference), "2");
  }
  EXPECT_EQ(DA::findBSDName("/dev/disk1/dev/s2"), "disk1s2") << "every /dev/ is taken out";
  EXPECT_EQ(DA::findBSDNameOfCurrentVolume(), "disk0s3");
  EXPECT_EQ(DA::findBSDdiskParent("disk1"), "disk1");
}

TEST_F(Finders, DistinguishInvalidReferencesFromUnknownDisks) {
  for (const char *reference :
       {"", "rdisk0s1", "Disk0s1", "dev/disk0s1", "N/A", "/no/such/path", "/dev/rdisk0s1"}) {
    EXPECT_EQ(getDAdiskDescriptionFromBSDorMountpoint(reference), std::nullopt) << reference;
  }
  for (const char *reference : {"disk", "disk99", "diskette", "disk0s1 ", "/dev/disk99",
                                "disk/dev/0", "/usr", "//dev/null"}) {
    EXPECT_EQ(getDAdiskDescriptionFromBSDorMountpoint(reference), DiskDescription()) << reference;
  }
}

TEST_F(Finders, ReturnTheirSentinelsForUnknownDisks) {
  EXPECT_EQ(DA::findPartitionName("disk99"), std::nullopt);
  EXPECT_EQ(DA::findDiskUUID("disk99"), std::nullopt);
  EXPECT_EQ(DA::findBSDdiskParent("disk99"), "disk(null)");
  EXPECT_EQ(DA::findSliceNumberFromPartitionDisk("disk99"), "N/A");
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk99"), std::nullopt);
  EXPECT_EQ(DA::findAllPartitionNameParentSeparatedByComma("disk99"), "");
  EXPECT_FALSE(DA::isGPT("disk99") || DA::isWritable("disk99") || DA::isMountPointValid("disk99"));
}

TEST_F(Finders, ReadThePartitionOrItsWholeDisk) {
  EXPECT_EQ(DA::findPartitionSchemeMap("disk1s1"), "GUID_partition_scheme");
  EXPECT_EQ(DA::findVolumeMediaContent("disk1s1"), "C12A7328-F81F-11D2-BA4B-00A0C93EC93B");
  EXPECT_EQ(DA::findDeviceProtocol("disk1s1"), "SATA");
  EXPECT_TRUE(DA::isGPT("disk1s1") && DA::isInternal("disk0s1") && DA::isEjectable("disk2s1"));
  EXPECT_FALSE(DA::isWritable("disk2s1"));
  EXPECT_EQ(DA::findVolumeUUID("disk1s2"), "AAAAAAAA-BBBB-4CCC-8DDD-EEEEEEEEEEEE");
  EXPECT_EQ(DA::findDiskUUID("disk1s2"), "11111111-2222-3333-4444-5555555555AA");
  EXPECT_EQ(DA::findVolumeUUID("disk2s1"), "disk(null)") << "a FAT serial number is not a UUID";
  EXPECT_EQ(DA::findMountPointName("disk1s2"), "Data");
  EXPECT_EQ(DA::findMountPointName("disk1s1"), "N/A") << "while it is not mounted";
  EXPECT_EQ(DA::findMountPoint("disk1s1"), std::nullopt);
  EXPECT_EQ(DA::getListOfMountedMedia(), QStringList({"Data", "System"}));
}

TEST(FindersOnOddMachines, ReadNumbersAboveNineAndKeepPunctuationInNames) {
  const TestPlatform machine(R"json({ "disks": [
    { "unit": 1, "scheme": "GUID_partition_scheme", "partitions": [ { "slice": 2 },
      { "slice": 10, "media": "EFI System Partition" }, { "slice": 3, "media": "Same" } ] },
    { "unit": 12, "media": "(null)", "scheme": "GUID_partition_scheme", "partitions": [
      { "slice": 1, "media": "EFI System Partition" }, { "slice": 10, "media": "100% %1 a:" } ] } ] })json");
  EXPECT_EQ(DA::findBSDdiskParent("disk12s10"), "disk12");
  EXPECT_EQ(DA::findSliceNumberFromPartitionDisk("disk12s10"), "10");
  EXPECT_EQ(DA::findAllEFIdisk(), QStringList({"disk1s10", "disk12s1"}));
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk12s10"), "disk12s1");
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk1s10"), std::nullopt) << "only slice 1 counts";
  EXPECT_EQ(DA::findAllPartitionNameParentSeparatedByComma("disk1"), "EFI System Partition: Same");
  EXPECT_EQ(DA::findAllPartitionNameParentSeparatedByComma("disk12s1"),
            "N/A: EFI System Partition, 100% %1 a:");
}

TEST(FindersOnOldSystems, TheVersionsSecondNumberDecides) {
  for (const auto &[version, minor] :
       {std::pair("10.8.5", 8), {"11", 0}, {"10. 9b", 9}, {"10.99999999999", 2147483647}}) {
    const TestPlatform machine(R"({ "productVersion": ")" + QByteArray(version) + R"(" })");
    EXPECT_EQ(DA::findOSXMinorVersion(), minor) << version;
  }
}
