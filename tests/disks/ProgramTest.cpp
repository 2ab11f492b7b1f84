// The whole program, real widgets and all, on real disks.

#include <QFile>

#include "disks/DiskTest.h"
#include "support/Program.h"

namespace {

class ProgramOnRealDisks : public DiskTest {};

}  // namespace

TEST_F(ProgramOnRealDisks, MountsAndUnmountsWithOneClickEach) {
  const QString device = addSystemPartition("EFI Ä");
  const QString name = nameOf(device);
  Program program(*platform);
  ASSERT_NE(program.rowOf(name), nullptr);
  EXPECT_TRUE(program.rowOf(name)->textField()->stringValue().startsWith("ESP on " + name));

  program.click(name);
  const QString path = mountPointOf(name);
  EXPECT_EQ(program.title(name), "umount " + name);
  EXPECT_EQ(program.rowOf(name)->openButton()->title(), "open " + path);
  EXPECT_TRUE(program.says(name + " mouted at " + path));

  QFile busy(path + "/file");
  ASSERT_TRUE(busy.open(QIODevice::WriteOnly));
  program.click(name);
  EXPECT_EQ(program.title(name), "umount " + name);
  EXPECT_TRUE(program.says("umount failed for " + name + ", reason: busy"));
  EXPECT_EQ(program.interface.statusTextField()->textColor(), TextField::TextColor::Red);

  program.interface.forceUmountCheck()->setState(CheckBox::kOn);
  program.click(name);
  EXPECT_EQ(program.title(name), "mount " + name);
  EXPECT_TRUE(program.says(path + " umounted!"));
}
