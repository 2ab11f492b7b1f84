#include <gtest/gtest.h>

#include "DiskArbitrator/DiskArbitrator.h"
#include "support/Files.h"
#include "support/IconBytes.h"
#include "support/TestMachine.h"

namespace {

using DA = DiskArbitrator;

QImage shipped(const QString &path) {
  return Platform::current().systemFiles().image("/System/Library/" + path).value_or(QImage());
}

const QString kDriver = "Extensions/com.brinmoor.Keldra.StorageIcons.kext/Contents/Resources/";

}  // namespace

TEST(VolumeIcon, IsTheVolumesOwnWhileItIsMounted) {
  TestPlatform machine(twoEspMachine());
  const QString file = machine.folder("Data") + "/.VolumeIcon.icns";
  for (const QColor color : {Qt::magenta, Qt::cyan}) {
    writeFile(file, icns({{"ic08", pngOf(256, color)}}));
    EXPECT_EQ(DA::findVolumeIcon("disk1s2").pixelColor(0, 0), color) << "a changed file";
  }
  EXPECT_EQ(DA::findVolumeIcon("disk1s1"), shipped(kDriver + "Internal.icns"))
      << "not another volume's icon";
  writeFile(file, "no picture");
  EXPECT_TRUE(DA::findVolumeIcon("disk1s2").isNull()) << "ends the search for icons";
  ASSERT_TRUE(QFile::remove(file) && QFile::link(machine.folder("elsewhere"), file));
  writeFile(machine.folder("elsewhere"), icns({{"ic08", pngOf(256, Qt::magenta)}}));
  EXPECT_EQ(DA::findVolumeIcon("disk1s2"), shipped(kDriver + "Internal.icns"));
}

TEST(VolumeIcon, ComesFromTheDriverThatTheDescriptionNames) {
  const TestPlatform machine(R"json({ "disks": [
    { "unit": 1, "protocol": "USB", "partitions": [ { "slice": 1 } ] },
    { "unit": 4, "icon": { "bundle": "com.example.gone", "file": "Internal.icns" } },
    { "unit": 5, "icon": { "bundle": "com.brinmoor.Keldra.StorageIcons", "file": "None.icns" } },
    { "unit": 6, "icon": {} },
    { "unit": 7, "icon": { "bundle": "../CoreServices", "file": "Internal.icns" } } ] })json");
  EXPECT_EQ(DA::findVolumeIcon("disk1s1"), shipped(kDriver + "Removable.icns"));
  const QImage caution =
      shipped("CoreServices/CoreTypes.bundle/Contents/Resources/AlertCautionIcon.icns");
  for (const char *name : {"disk4", "disk5", "disk6", "disk7", "disk99"}) {
    EXPECT_EQ(DA::findVolumeIcon(name), caution) << name;
  }
  EXPECT_EQ(caution.width(), 256);
}
