// A real ESP on a system that poses as an old one (tools/lab/old-system).

#include <QDir>
#include <QFile>

#include "DiskArbitrator/DiskArbitrator.h"
#include "disks/DiskTest.h"
#include "support/Program.h"

namespace {

using DA = DiskArbitrator;

class OldSystem : public DiskTest {
 public:
  std::optional<QString> productVersion() const override { return "10.8.5"; }
};

}  // namespace

TEST_F(OldSystem, MountsFindsAndUnmountsAnESPByItsPrograms) {
  const QString device = addSystemPartition("OLD");
  const QString name = nameOf(device);
  ASSERT_TRUE(QFile::link(device, qEnvironmentVariable("KELDRA_LAB") + "/old/devices/" + name));
  Program program(*platform);
  ASSERT_EQ(DA::findOSXMinorVersion(), 8);
  EXPECT_EQ(program.title(name), "umount " + name) << "as if mounted";
  EXPECT_EQ(DA::findMountPoint(name), "N/A");
  ASSERT_TRUE(QDir().mkpath("/Volumes/EFI"));
  ASSERT_TRUE(QDir().mkpath("/Volumes/EFI 1/in use"));
  ASSERT_TRUE(DA::mountPartition(name, std::nullopt));
  const QString path = "/Volumes/EFI 2";
  EXPECT_EQ(mountPointOf(name), path) << "as the kernel tells";
  EXPECT_EQ(DA::findMountPoint(name), path) << "as df tells";
  EXPECT_EQ(DA::findBSDName(path), name);
  EXPECT_TRUE(program.says(name + " mouted at " + path));
  EXPECT_EQ(program.rowOf(name)->openButton()->title(), "open " + path);

  program.click(name);
  EXPECT_TRUE(program.says(path + " umounted!"));
  EXPECT_EQ(mountPointOf(name), "");
  EXPECT_EQ(DA::findMountPoint(name), "N/A");
  EXPECT_EQ(program.title(name), "umount " + name);
}
