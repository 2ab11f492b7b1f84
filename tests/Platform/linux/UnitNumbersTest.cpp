#include "Platform/linux/UnitNumbers.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include "support/Files.h"

namespace {

class UnitNumbersTest : public testing::Test {
 public:
  WholeDisk attach(const QString &name, uint minorNumber, int sequence, int size = 8) {
    const QString folder = _folder.filePath("block/" + name);
    writeFile(folder + "/dev", "8:" + QByteArray::number(minorNumber) + "\n");
    writeFile(folder + "/diskseq", QByteArray::number(sequence) + "\n");
    writeFile(folder + "/size", QByteArray::number(size) + "\n");
    return {name, makedev(8, minorNumber)};
  }

  QString file() const { return _folder.filePath("runtime/units"); }

  UnitNumbers program(const QString &boot = "boot-1") const {
    return {BlockDevices(_folder.filePath("block")), UnitFile(file(), boot)};
  }

 private:
  QTemporaryDir _folder;
};

}  // namespace

TEST_F(UnitNumbersTest, PutDrivesFirstAndReadersLastInAnyOrderOfAnnouncements) {
  const char *const kInOrder[] = {"mmcblk0", "nvme0n1", "sdb",   "sdaa",   "pmem0", "dm-0",
                                  "md127",   "nbd0",    "loop2", "loop10", "sr0"};
  QList<WholeDisk> disks;
  for (int number = 11; number > 0; --number) {
    disks.prepend(attach(kInOrder[number - 1], static_cast<uint>(number), number));
  }
  attach("loop0", 20, 20, 0);
  attach("zram0", 21, 21);
  auto units = program();
  EXPECT_EQ(units.unitsOf({disks[3]}), QList{3});
  EXPECT_EQ(units.unitsOf(disks), (QList{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_EQ(units.unitsOf({{"unknown to the kernel", makedev(8, 160)}}), QList{11});
}

TEST_F(UnitNumbersTest, AreWrittenByRootToFilesOwnedByTheUser) {
  if (geteuid() != 0) GTEST_SKIP() << "needs root";
  const auto sda = attach("sda", 1, 1);
  const QString folder = QFileInfo(QFileInfo(file()).path()).path();
  ASSERT_EQ(chown(qPrintable(folder), 65534, 65534), 0);
  program().unitsOf({sda});
  EXPECT_EQ(QFileInfo(file()).ownerId(), 65534U);
  EXPECT_EQ(geteuid(), 0U);
}

TEST_F(UnitNumbersTest, AreSharedByProgramsAndNeverReused) {
  const auto sda = attach("sda", 1, 1);
  const auto loop = attach("loop0", 2, 2);
  auto first = program();
  EXPECT_EQ(first.unitsOf({sda, loop}), (QList{0, 1}));
  const auto reused = attach("loop0", 2, 3);
  auto second = program();
  EXPECT_EQ(second.unitsOf({reused}), QList{2}) << "another file is another disk";
  const auto sdb = attach("sdb", 3, 4);
  EXPECT_EQ(first.unitsOf({sdb, reused, sda}), (QList{3, 2, 0}));
  EXPECT_EQ(second.unitsOf({sdb}), QList{3});
}

TEST_F(UnitNumbersTest, OfRemovedDisksAreDroppedWhenThereAreTooMany) {
  const auto sda = attach("sda", 1, 1);
  QByteArrayList entries;
  for (int i = 0; i < 6000; ++i) {
    entries << "\"diskseq " + QByteArray::number(i) + "\":" + QByteArray::number(i);
  }
  writeFile(file(), R"({"boot": "boot-1", "next": 6000, "units": {)" + entries.join(',') + "}}");
  const WholeDisk other{"sdx", makedev(8, 160)};
  EXPECT_EQ(program().unitsOf({sda, other}), (QList{1, 6000}));
  EXPECT_LT(QFileInfo(file()).size(), 200);
  EXPECT_EQ(program().unitsOf({sda, other}), (QList{1, 6000}));
  EXPECT_EQ(program().unitsOf({{"sdy", makedev(8, 176)}}), QList{6001}) << "a number was reused";
}

TEST_F(UnitNumbersTest, RestartAfterARebootOrWithACorruptFile) {
  const auto sda = attach("sda", 1, 1);
  for (const char *text :
       {"[]", R"({"boot": "boot-0", "next": 9, "units": {"diskseq 1": 3}})",
        R"({"boot": "boot-1", "next": 1e300, "units": {}})",
        R"({"boot": "boot-1", "next": 9, "units": {"diskseq 1": 9}})",
        R"({"boot": "boot-1", "next": 9, "units": {"diskseq 1": 3, "diskseq 2": 3}})"}) {
    writeFile(file(), text);
    EXPECT_EQ(program().unitsOf({sda}), QList{0}) << text;
  }
}
