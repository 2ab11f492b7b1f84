// Names that a stranger has written on a real disk, as the real service hands them on.

#include <QAccessible>

#include "disks/DiskTest.h"
#include "disks/Program.h"

namespace {

class HostileNamesOnRealDisks : public DiskTest {
 public:
  /// A table's script cannot hold all names.
  void nameSlice(const QString &disk, int slice, const QString &name) {
    DiskLab::run("sfdisk", {"--no-reread", "--no-tell-kernel", "--part-label", disk,
                            QString::number(slice), name});
    DiskLab::run("udevadm",
                 {"trigger", "--action=change", "--settle", disk + "p" + QString::number(slice)});
    const QString media = nameOf(disk) + "s" + QString::number(slice);
    EXPECT_TRUE(waitFor([&] { return value(media, kDADiskDescriptionMediaNameKey) == name; }));
  }
};

QString spokenNameOf(ESPTableCellView *cell) {
  return QAccessible::queryAccessibleInterface(cell)->text(QAccessible::Name);
}

}  // namespace

TEST_F(HostileNamesOnRealDisks, OfPartitionsKeepToTheirRows) {
  const QString disk = addDisk("<b>%1 & x", "label: gpt\nsize=8M, type=L\nsize=8M, type=L\n", 2);
  const QString parent = nameOf(disk);
  const QString spoof = "ESP on disk0s1\nparent of disk0,";
  const QString markup = "<b>%1&\u202E\\x41\u001b[1m";
  nameSlice(disk, 1, spoof);
  nameSlice(disk, 2, markup);
  Program program(*platform);
  program.interface.showAllDisksCheck()->click();

  const QString rest = "\nparent of " + parent + ",\n<b>%1 & x.img: " + spoof + ", " + markup;
  ESPTableCellView *row = program.rowOf(parent + "s1");
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->textField()->stringValue(), spoof + " on " + parent + "s1" + rest);
  EXPECT_EQ(spokenNameOf(row).section('\n', 0, 0),
            "ESP on disk0s1\uFFFDparent of disk0, on " + parent + "s1");
  row = program.rowOf(parent + "s2");
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->textField()->stringValue(), markup + " on " + parent + "s2" + rest);
  EXPECT_EQ(spokenNameOf(row).count('\n'), 2);
}

TEST_F(HostileNamesOnRealDisks, OfVolumesAreMountedAndUnmountedAsAnyOther) {
  const QString device = addSystemPartition("plain");
  const QString name = nameOf(device);
  Program program(*platform);
  for (const char *label :
       {"<b>%1&open /x\"", "a\nb\tc\\x41\\", "../../../etc", "\u202E%n(null)"}) {
    SCOPED_TRACE(label);
    format(device, QString::fromUtf8(label));
    ASSERT_TRUE(waitFor([&] { return program.rowOf(name) != nullptr; }));
    program.click(name);
    const QString path = mountPointOf(name);
    EXPECT_EQ(path.section('/', 0, -2), "/media/root");
    EXPECT_EQ(program.title(name), "umount " + name);
    EXPECT_EQ(program.rowOf(name)->openButton()->title(), "open " + path);
    EXPECT_TRUE(program.says(name + " mouted at " + path));
    EXPECT_EQ(spokenNameOf(program.rowOf(name)).count('\n'), 2);

    program.click(name);
    EXPECT_TRUE(program.says(path + " umounted!"));
    EXPECT_EQ(program.title(name), "mount " + name);
  }
}
