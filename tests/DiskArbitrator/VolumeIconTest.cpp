#include <gtest/gtest.h>

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

TEST(VolumeIcon, ThatLeadsElsewhereIsPassedOver) {
  const TestPlatform machine(twoEspMachine());
  const QString elsewhere = machine.folder("elsewhere");
  writeFile(elsewhere, icns({{"ic08", pngOf(256, Qt::magenta)}}));
  ASSERT_TRUE(QFile::link(elsewhere, machine.folder("Data") + "/.VolumeIcon.icns"));
  EXPECT_EQ(DA::findVolumeIcon("disk1s2"), driverIcon("Internal.icns"));
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

  QFile::remove(file);
  machine.platform.mountFromOutside("disk0s1");
  EXPECT_EQ(machine.status(), "disk0s1 mouted at " + machine.folder("EFI"));
  EXPECT_EQ(machine.listed().size(), 6);
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
}
