#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "DiskArbitrator/DiskArbitrator.h"
#include "support/Files.h"
#include "support/IconBytes.h"
#include "support/TestMachine.h"

namespace {

using DA = DiskArbitrator;

QImage shipped(const QString &name) {
  return Platform::current().systemFiles().image("/System/Library/" + name).value_or(QImage());
}

QImage driverIcon(const QString &name) {
  return shipped("Extensions/com.brinmoor.Keldra.StorageIcons.kext/Contents/Resources/" + name);
}

QImage cautionIcon() {
  return shipped("CoreServices/CoreTypes.bundle/Contents/Resources/AlertCautionIcon.icns");
}

}  // namespace

TEST(VolumeIcon, IsTheVolumesOwnWhileItIsMounted) {
  TestPlatform machine(twoEspMachine());
  const QImage driver = DA::findVolumeIcon("disk1s2");
  EXPECT_EQ(driver, driverIcon("Internal.icns"));
  const QString file = machine.folder("Data") + "/.VolumeIcon.icns";
  writeFile(file, icns({{"ic08", pngOf(256, Qt::magenta)}}));
  EXPECT_EQ(DA::findVolumeIcon("disk1s2").pixelColor(0, 0), QColor(Qt::magenta));
  EXPECT_EQ(DA::findVolumeIcon("disk1s1"), driver) << "another one of that disk";
  writeFile(file, icns({{"ic08", pngOf(256, Qt::cyan)}}));
  EXPECT_EQ(DA::findVolumeIcon("disk1s2").pixelColor(0, 0), QColor(Qt::cyan)) << "written anew";
  machine.platform.unmountFromOutside("disk1s2");
  EXPECT_EQ(DA::findVolumeIcon("disk1s2"), driver);
}

TEST(VolumeIcon, ThatCannotBeReadIsPassedOver) {
  const TestPlatform machine(twoEspMachine());
  const QString file = machine.folder("Data") + "/.VolumeIcon.icns";
  const QByteArray name = QFile::encodeName(file);
  const auto isPassedOver = [&] {
    const bool passed = DA::findVolumeIcon("disk1s2") == driverIcon("Internal.icns");
    return std::filesystem::remove(name.constData()) && passed;
  };
  ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
  EXPECT_TRUE(isPassedOver()) << "a pipe";
  for (const char *target : {"/dev/zero", ".VolumeIcon.icns"}) {
    ASSERT_EQ(symlink(target, name.constData()), 0);
    EXPECT_TRUE(isPassedOver()) << "a link to " << target;
  }
  writeFile(file, "icns");
  ASSERT_EQ(truncate(name.constData(), 1LL << 40), 0);
  EXPECT_TRUE(isPassedOver()) << "a file without end";
}

TEST(VolumeIcon, ThatDoesNotDecodeEndsTheSearchAndTheRefresh) {
  TestMachine machine(twoEspMachine());
  machine.tickShowAll();
  ASSERT_EQ(machine.listed().size(), 6);
  const QString file = machine.folder("Data") + "/.VolumeIcon.icns";
  writeFile(file, "no picture");
  EXPECT_TRUE(DA::findVolumeIcon("disk1s2").isNull());
  EXPECT_THROW(machine.delegate.refreshLists(), std::invalid_argument);
  EXPECT_EQ(machine.listed().size(), 4) << "the rows before it";

  machine.platform.mountFromOutside("disk0s1");
  EXPECT_EQ(machine.status(), "disk0s1 mouted at " + machine.folder("EFI"));
  ASSERT_NE(machine.cell(5), nullptr) << "the table shows what it showed";
  machine.click(machine.mountButton(3));
  EXPECT_EQ(machine.status(), "disk1s1 mouted at " + machine.folder("EFI1"));

  QFile::remove(file);
  machine.platform.unmountFromOutside("disk0s1");
  EXPECT_EQ(machine.status(), machine.folder("EFI") + " umounted!");
  EXPECT_EQ(machine.listed().size(), 6);
  EXPECT_EQ(machine.mountButton(3)->title(), "umount disk1s1");
}

TEST(VolumeIcon, ComesFromTheDriverThatTheDescriptionNames) {
  const TestPlatform machine(R"json({ "disks": [
    { "unit": 1, "protocol": "USB", "partitions": [ { "slice": 1 } ] },
    { "unit": 4, "icon": { "bundle": "com.example.gone", "file": "Internal.icns" } },
    { "unit": 5, "icon": { "bundle": "com.brinmoor.Keldra.StorageIcons", "file": "None.icns" } },
    { "unit": 6, "icon": {} },
    { "unit": 7, "icon": { "bundle": "../CoreServices", "file": "Internal.icns" } } ] })json");
  EXPECT_EQ(DA::findVolumeIcon("disk1s1"), driverIcon("Removable.icns"));
  for (const char *name : {"disk4", "disk5", "disk6", "disk7", "disk99"}) {
    EXPECT_EQ(DA::findVolumeIcon(name), cautionIcon()) << name;
  }
  EXPECT_EQ(cautionIcon().width(), 256);
  for (const char *name : {"Internal", "Removable", "DiskImage", "Optical"}) {
    EXPECT_EQ(driverIcon(QString(name) + ".icns").width(), 256) << name;
  }
}
