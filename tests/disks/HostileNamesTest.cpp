// Names that a stranger has written on a real disk, as the real service hands them on.

#include "disks/DiskTest.h"
#include "support/Program.h"

class HostileNamesOnRealDisks : public DiskTest {};

TEST_F(HostileNamesOnRealDisks, AreMountedAndUnmountedAsAnyOther) {
  const QString disk = addDisk("<b>%1 & x", "label: gpt\nsize=32M, type=L\n", 1);
  const QString device = disk + "p1";
  const QString name = nameOf(disk) + "s1";
  // A table's script cannot hold all names.
  const QString partition = "ESP on disk0s1\nparent of <b>%1&\u202E\\x41";
  DiskLab::run("sfdisk", {"--no-reread", "--no-tell-kernel", "--part-label", disk, "1", partition});
  DiskLab::run("udevadm", {"trigger", "--action=change", "--settle", device});
  Program program(*platform);
  program.interface.showAllDisksCheck()->click();
  const auto text = [&] { return program.rowOf(name)->textField()->stringValue(); };
  for (const char *label : {"<b>%1&open /x\"", "a\nb\tc\\x41\\", "../../../etc"}) {
    SCOPED_TRACE(label);
    format(device, label);
    EXPECT_TRUE(waitFor([&] { return program.rowOf(name) && text().startsWith(partition); }));
    EXPECT_EQ(text(), partition + " on " + name + "\nparent of " + nameOf(disk) +
                          ",\n<b>%1 & x.img: " + partition);
    program.click(name);
    const QString path = mountPointOf(name);
    EXPECT_EQ(path.section('/', 0, -2), "/media/root");
    EXPECT_EQ(program.title(name), "umount " + name);
    EXPECT_EQ(program.rowOf(name)->openButton()->title(), "open " + path);
    EXPECT_TRUE(program.says(name + " mouted at " + path));

    program.click(name);
    EXPECT_TRUE(program.says(path + " umounted!"));
    EXPECT_EQ(program.title(name), "mount " + name);
  }
}
