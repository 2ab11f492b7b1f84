#include <gtest/gtest.h>

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

TEST_F(Finders, TakeNamesDevicePathsAndMountPoints) {
  const QString path = machine.folder("Data");
  for (const QString &reference : {QString("disk1s2"), QString("/dev/disk1s2"), path}) {
    EXPECT_EQ(DA::findBSDName(reference), "disk1s2") << reference.toStdString();
    EXPECT_EQ(DA::findBSDdiskParent(reference), "disk1");
    EXPECT_EQ(DA::findSliceNumberFromPartitionDisk(reference), "2");
  }
  EXPECT_EQ(DA::findBSDName("/dev/disk1/dev/s2"), "disk1s2") << "every /dev/ is taken out";
  EXPECT_EQ(DA::findBSDNameOfCurrentVolume(), "disk0s3");
  EXPECT_EQ(DA::findBSDdiskParent("disk1"), "disk1");
}

TEST_F(Finders, TellNoReferenceFromAnUnknownDisk) {
  for (const char *reference : {"", "rdisk0s1", "EFI", "/no/such/path"}) {
    EXPECT_FALSE(getDAdiskDescriptionFromBSDorMountpoint(QString::fromUtf8(reference)).has_value());
  }
  for (const char *reference : {"disk99", "/dev/disk99", "/usr"}) {
    EXPECT_EQ(getDAdiskDescriptionFromBSDorMountpoint(QString::fromUtf8(reference)),
              DiskDescription());
  }
}

TEST_F(Finders, AnswerForUnknownDisksWithTheirSentinels) {
  EXPECT_EQ(DA::findPartitionName("disk99"), std::nullopt);
  EXPECT_EQ(DA::findMountPointName("disk99"), "N/A");
  EXPECT_EQ(DA::findVolumeUUID("disk99"), "disk(null)");
  EXPECT_EQ(DA::findDiskUUID("disk99"), std::nullopt);
  EXPECT_EQ(DA::findPartitionSchemeMap("disk99"), std::nullopt);
  EXPECT_EQ(DA::findBSDName("disk99"), std::nullopt);
  EXPECT_EQ(DA::findBSDdiskParent("disk99"), "disk(null)");
  EXPECT_EQ(DA::findSliceNumberFromPartitionDisk("disk99"), "N/A");
  EXPECT_EQ(DA::findMountPoint("disk99"), std::nullopt);
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk99"), std::nullopt);
  EXPECT_EQ(DA::findAllPartitionNameParentSeparatedByComma("disk99"), "");
  EXPECT_FALSE(DA::isGPT("disk99") || DA::isWritable("disk99") || DA::isMountPointValid("disk99"));
}

TEST_F(Finders, AskThePartitionOrItsDiskAsEachOneMust) {
  EXPECT_EQ(DA::findPartitionSchemeMap("disk1s1"), "GUID_partition_scheme");
  EXPECT_EQ(DA::findVolumeMediaContent("disk1s1"), "C12A7328-F81F-11D2-BA4B-00A0C93EC93B");
  EXPECT_EQ(DA::findVolumeMediaContent("disk1"), "GUID_partition_scheme");
  EXPECT_EQ(DA::findDeviceProtocol("disk1s1"), "SATA");
  EXPECT_TRUE(DA::isGPT("disk1s1"));
  EXPECT_FALSE(DA::isGPT("disk2s1"));
  EXPECT_TRUE(DA::isInternal("disk0s1"));
  EXPECT_TRUE(DA::isEjectable("disk2s1"));
  EXPECT_FALSE(DA::isWritable("disk2s1"));
}

TEST_F(Finders, TakeTheIdentifierOutOfWhatTheServicePrints) {
  EXPECT_EQ(DA::findVolumeUUID("disk1s2"), "AAAAAAAA-BBBB-4CCC-8DDD-EEEEEEEEEEEE");
  EXPECT_EQ(DA::findDiskUUID("disk1s2"), "11111111-2222-3333-4444-5555555555AA");
  EXPECT_EQ(DA::findVolumeUUID("disk2s1"), "disk(null)") << "a FAT serial number is none";
}

TEST_F(Finders, NameAVolumeOnlyWhileItIsMounted) {
  EXPECT_EQ(DA::findMountPointName("disk1s2"), "Data");
  EXPECT_EQ(DA::findMountPointName("disk1s1"), "N/A");
  EXPECT_EQ(DA::findMountPoint("disk1s2"), machine.folder("Data"));
  EXPECT_EQ(DA::findMountPoint("disk1s1"), std::nullopt);
  EXPECT_EQ(DA::getListOfMountedMedia(), QStringList({"Data", "System"}));
}

TEST_F(Finders, RelateAPartitionToItsDisk) {
  EXPECT_EQ(DA::getAlldisks(), QStringList({"disk1", "disk1s1", "disk1s2", "disk0", "disk0s1",
                                            "disk0s2", "disk0s3", "disk2", "disk2s1"}));
  EXPECT_EQ(DA::findAllEFIdisk(), QStringList({"disk1s1", "disk0s1"}));
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk0s3"), "disk0s1");
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk0s1"), "disk0s1");
  EXPECT_EQ(DA::findEFIdiskOfTheParentDisk("disk2s1"), std::nullopt);
}

TEST(FindersOnOddNames, TheSiblingLineSkipsTheNamelessAndKeepsItsPunctuation) {
  const TestPlatform machine(R"json({ "disks": [
    { "unit": 0, "partitions": [ { "slice": 1 }, { "slice": 2, "media": "First" },
                                 { "slice": 3, "media": "Same" }, { "slice": 4, "media": "Same" } ] },
    { "unit": 1, "media": "(null)", "partitions": [ { "slice": 1, "media": "100% %1 a:" } ] } ] })json");
  EXPECT_EQ(DA::findAllPartitionNameParentSeparatedByComma("disk0"), "First: Same, Same");
  EXPECT_EQ(DA::findAllPartitionNameParentSeparatedByComma("disk1s1"), "N/A: 100% %1 a:");
}

TEST(FindersOnOldSystems, TheVersionsSecondNumberDecides) {
  const auto minorOf = [](const QByteArray &version) {
    const TestPlatform machine(R"({ "productVersion": ")" + version + R"(" })");
    return DA::findOSXMinorVersion();
  };
  EXPECT_EQ(minorOf("10.15"), 15);
  EXPECT_EQ(minorOf("10.8.5"), 8);
  EXPECT_EQ(minorOf("11.2"), 2);
  EXPECT_EQ(minorOf("11"), 0);
  EXPECT_EQ(minorOf(""), 0);

  const TestPlatform old(R"({ "productVersion": "10.8", "disks": [ { "unit": 0, "partitions": [
      { "slice": 1, "media": "EFI System Partition" }, { "slice": 2, "media": "Data" } ] } ] })");
  EXPECT_EQ(DA::findMountPointName("disk0s1"), "EFI");
  EXPECT_EQ(DA::findMountPointName("disk0s2"), "N/A");
}
