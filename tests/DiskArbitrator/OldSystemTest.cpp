#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/DiskFree.h"
#include "support/Files.h"
#include "support/TestMachine.h"

namespace {

using DA = DiskArbitrator;

class OldSystem : public testing::Test {
 protected:
  void makeFolder(const QString &name) { EXPECT_TRUE(QDir().mkpath(machine.folder(name))); }
  QString mountedAt(const QString &name) {
    return machine.platform.descriptionOfMedia(name)
        ->value(kDADiskDescriptionVolumePathKey)
        .toUrl()
        .toLocalFile();
  }

  TestPlatform machine{
      twoEspMachine().replace("{ \"disks\"", R"({ "productVersion": "10.8.5", "disks")")};
};

}  // namespace

TEST(DiskFree, ReadsTheLineThatBeginsWithTheDevice) {
  const std::pair<QString, std::optional<QString>> kCases[] = {
      {"head\n/dev/disk0s1 9 9 9 37% /Volumes/EFI 1\n", "/Volumes/EFI 1"},
      {"/dev/disk0s1 9 37% 5 6 12% /\n", "5 6 12"},  // the second piece, whatever it contains
      {"/dev/disk0s10 9 1% /other\n/dev/disk0s1 9 2% /own\n", "/other"},
      {"/dev/disk0s1 9 9\n/dev/disk0s1 9 9 2% /later\n", std::nullopt},
      {"map /dev/disk0s1 9 2% /inner\n", std::nullopt},
  };
  for (const auto &[output, mountPoint] : kCases) {
    EXPECT_EQ(mountPointInDiskFree(output, "/dev/disk0s1"), mountPoint) << output.toStdString();
  }
}

TEST_F(OldSystem, MountsAnESPOnTheFirstFreeFolder) {
  EXPECT_TRUE(DA::mountPartition("disk1s1", std::nullopt));
  EXPECT_EQ(mountedAt("disk1s1"), machine.folder("EFI"));
  EXPECT_EQ(DA::findMountPoint("disk1s1"), machine.folder("EFI"));
  EXPECT_TRUE(DA::umountPartition("disk1s1", false));
  EXPECT_EQ(mountedAt("disk1s1"), "");

  makeFolder("EFI");  // skipped although empty
  makeFolder("EFI 1/in use");
  makeFolder("EFI 2/.hidden");
  EXPECT_TRUE(DA::mountPartition("disk1s1", QString("(null)")));
  EXPECT_EQ(mountedAt("disk1s1"), machine.folder("EFI 2"));
  EXPECT_FALSE(DA::mountPartition("disk0s1", machine.folder("none/deep"))) << "one level only";
  EXPECT_FALSE(DA::mountPartition("disk0s1", machine.folder("Data//"))) << "the folder is in use";
  EXPECT_TRUE(DA::mountPartitionModeLegacy("disk1s2", machine.folder("Data")));
  EXPECT_TRUE(DA::mountPartition("disk0s1", machine.folder("%1 %2")));
  EXPECT_EQ(mountedAt("disk0s1"), machine.folder("%1 %2"));
}

TEST_F(OldSystem, TreatsEveryESPAsMountedAndOtherPartitionsByTheService) {
  EXPECT_EQ(DA::findMountPointName("disk1s1"), "EFI");
  EXPECT_EQ(DA::findMountPoint("disk1s1"), "N/A");
  EXPECT_TRUE(DA::isMountPointValid("disk1s1"));
  EXPECT_EQ(DA::findMountPoint("disk2s1"), std::nullopt);

  machine.platform.setRefusals("disk1s2", std::nullopt, kDAReturnBusy);
  EXPECT_TRUE(DA::umountPartition("disk1s2", false));
  EXPECT_EQ(DA::findMountPoint("disk1s2"), machine.folder("Data")) << "not forced";
}

TEST_F(OldSystem, AcceptsAFolderWithHiddenEntriesOnly) {
  const QString folder = machine.folder("chosen");
  const auto isEmpty = [&] { return DA::chosenFolderIsEmpty(folder); };
  EXPECT_FALSE(isEmpty()) << "the folder does not exist";
  makeFolder("chosen/.DS_Store");
  EXPECT_TRUE(isEmpty());
  QDir(folder).rmdir(".DS_Store");
  writeFile(folder + "/.DS_Store", {});
  EXPECT_FALSE(isEmpty());
  QFile::remove(folder + "/.DS_Store");
  QFile::link("/nowhere", folder + "/dangling link");
  EXPECT_FALSE(isEmpty());
}
