#include <gtest/gtest.h>

#include "DiskArbitrator/DiskArbitrator.h"
#include "support/TestMachine.h"

namespace {

using DA = DiskArbitrator;

QByteArray probedMachine(const QByteArray &more = {}) {
  return "{ " + more + R"json( "disks": [
    { "unit": 0, "physicalBlockSize": 4096, "logicalBlockSize": 512, "partitions": [
      { "slice": 1, "media": "EFI System Partition", "volume": { "kind": "msdos", "name": "A", "subtype": 2 } },
      { "slice": 2, "volume": { "kind": "msdos", "name": "B", "subtype": 1 } },
      { "slice": 3, "volume": { "kind": "msdos", "name": "C", "subtype": 0 } },
      { "slice": 4, "volume": { "kind": "msdos", "name": "D", "subtype": 3 } },
      { "slice": 6, "volume": { "kind": "msdos", "name": "F", "subtype": 2 }, "refuse": { "mount": "busy" } },
      { "slice": 7, "volume": { "kind": "ext4", "name": "G", "subtype": 2 } },
      { "slice": 9, "volume": { "kind": "(null)" } } ] },
    { "unit": 1, "logicalBlockSize": 512 }, { "unit": 2 } ] })json";
}

}  // namespace

TEST(FileSystemPersonality, GivesTheWidthOfAMountedFATAndTheKindOfOthers) {
  const TestPlatform machine(probedMachine());
  const std::tuple<QString, QString, bool> kCases[] = {
      {"disk0s1", "Fat32", true},   {"/dev/disk0s2", "Fat16", true}, {"disk0s3", "Fat12", true},
      {"disk0s4", "Unknown", true}, {"disk0s6", "msdos", false},     {"disk0s7", "ext4", false},
      {"disk0s9", "N/A", false},    {"disk99", "N/A", false}};
  for (const auto &[reference, answer, isMounted] : kCases) {
    EXPECT_EQ(DA::findFileSystemPersonality(reference), answer) << reference.toStdString();
    EXPECT_EQ(DA::isMountPointValid(reference), isMounted) << reference.toStdString();
  }
  const TestPlatform old(probedMachine(R"("productVersion": "10.8",)"));
  EXPECT_EQ(DA::findFileSystemPersonality("/dev/disk0s1"), "Fat32");
  EXPECT_EQ(DA::findMountPointLegacy("disk0s1"), "N/A") << "the partition must not be mounted";
}

TEST(SectorSize, IsThePhysicalSizeOfTheWholeDiskIfKnown) {
  const TestPlatform machine(probedMachine());
  EXPECT_EQ(DA::findSectorSize("disk0s2"), "Physical 4096-bytes");
  EXPECT_EQ(DA::findSectorSize("disk1"), "Logical 512-bytes");
  EXPECT_EQ(DA::findSectorSize("disk2"), "N/A");
  const TestPlatform unprivileged(probedMachine(R"("root": false,)"));
  EXPECT_EQ(DA::findSectorSize("disk0"), "Not Priviliged");
}
