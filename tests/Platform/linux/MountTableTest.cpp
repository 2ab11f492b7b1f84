#include "Platform/linux/MountTable.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <QTemporaryDir>

#include "support/Files.h"

TEST(MountTable, ReadsLinesWithEscapedNamesAndOptionalFields) {
  const auto lines = parseMountTable(
      "36 25 8:1 / /media/a\\040b\\134c\\012d rw,nosuid shared:1 master:2 - ext4 /dev/sda1 rw\n"
      "37 25 259:70000 / /mnt rw - xfs /dev/nvme0n1p1 rw\n"
      "38 25 8:2 / /media/caf\\303\\251\\04 rw - ext4 /dev/sda2 rw\n");
  ASSERT_EQ(lines.size(), 3);
  EXPECT_EQ(lines[0].id, 36U);
  EXPECT_EQ(lines[0].device, makedev(8, 1));
  EXPECT_EQ(lines[0].mountPoint, "/media/a b\\c\nd");
  EXPECT_EQ(lines[0].fileSystem, "ext4");
  EXPECT_EQ(lines[0].source, "/dev/sda1");
  EXPECT_EQ(lines[1].device, makedev(259, 70000));
  EXPECT_EQ(lines[2].mountPoint, "/media/caf\xc3\xa9\\04") << "an unfinished escape is plain text";
}

TEST(MountTable, LeavesOutMalformedLines) {
  const auto lines = parseMountTable(
      "\n"
      "36 25 8:1 / /no-dash rw ext4 /dev/sda1 rw\n"
      "36 25 8:1 / /nothing-behind-dash rw -\n"
      "36 25 eight:1 / /bad-device rw - ext4 /dev/sda1 rw\n"
      "36 25 8:1 / relative rw - ext4 /dev/sda1 rw\n"
      "37 25 8:1 / /good rw - ext4 /dev/sda1 rw");
  ASSERT_EQ(lines.size(), 1);
  EXPECT_EQ(lines[0].mountPoint, "/good");
}

TEST(MountTable, FindsWhereAVolumeIsMounted) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("mountinfo");
  writeFile(path,
            "20 1 8:1 / /first rw - ext4 /dev/sda1 rw\n"
            "21 1 8:1 / /second rw - ext4 /dev/sda1 rw\n"
            "22 1 8:2 / /other rw - ext4 /dev/sda2 rw\n"
            "23 1 8:2 /ostree/7 / rw - ext4 /dev/sda2 rw\n"
            "24 1 8:3 /folder /bind rw - ext4 /dev/sda3 rw\n"
            "25 1 0:40 / /tmp rw - tmpfs /dev/sda4 rw\n"
            "26 1 0:41 / /spoof rw - fuse.x /dev/sda4 rw\n"
            "27 1 8:5 / /second rw - ext4 /dev/sda5 rw\n"
            "28 1 0:42 / /other rw - tmpfs none rw\n"
            "29 1 8:6 /@,a\\040b /sub rw - btrfs /dev/sda6 rw,subvolid=256,subvol=/@,a\\040b\n"
            "30 1 8:7 /@/folder /bind rw - btrfs /dev/sda7 rw,subvolid=257,subvol=/@\n");
  MountTable table(path);
  EXPECT_TRUE(table.refresh());
  EXPECT_FALSE(table.refresh()) << "nothing has changed since";
  EXPECT_EQ(table.mountPointOf(makedev(8, 1)), "/first");
  EXPECT_EQ(table.mountPointOf(makedev(8, 2)), "/");
  EXPECT_EQ(table.mountPointOf(makedev(8, 3)), std::nullopt) << "a folder is not the volume";
  EXPECT_EQ(table.mountPointOf(makedev(8, 6)), "/sub");
  EXPECT_EQ(table.mounts().size(), 6);
  EXPECT_EQ(table.deviceAt("/first"), makedev(8, 1));
  EXPECT_EQ(table.deviceAt("/second"), makedev(8, 5)) << "the topmost mount";
  EXPECT_EQ(table.deviceAt("/other"), 0U) << "the topmost mount is not a volume";
  EXPECT_EQ(table.deviceAt("/none"), 0U);
}
