// The user's login items, files, drivers, processes, and the program's own process.

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QUrl>
#include <QWindow>

#include "DiskArbitrator/DiskArbitrator.h"
#include "Platform/ThisMachine.h"
#include "macos/MacMachine.h"

class MacSystem : public MacMachine {};

TEST_F(MacSystem, LoginItemsAreIdentifiedByTheirLocation) {
  start();
  LoginItems &items = platform->loginItems();
  const QStringList others{"", "/Applications/Other.app", items.ownLocation()};
  mac.loginItems = others;
  items.insertOwnItem();
  const auto snapshot = *items.snapshot();
  ASSERT_EQ(snapshot.size(), 4);
  EXPECT_EQ(snapshot.at(0).location, std::nullopt);
  EXPECT_EQ(snapshot.at(3).location, items.ownLocation());
  items.remove(snapshot.at(0));
  items.remove(snapshot.at(3));
  EXPECT_EQ(mac.loginItems, others) << "removes one of two own items, and no unknown one";
}

TEST_F(MacSystem, APartitionShowsThePictureOfItsDriver) {
  const QString driver = "/System/Library/Extensions/com.brinmoor.Keldra.StorageIcons.kext";
  mac.driverBundles = {{"driver", driver}};
  start();
  const CurrentPlatform current(*platform);
  const auto picture = [&](const char *disk, const char *bundle, const char *file) {
    const QVariantMap icon{{"CFBundleIdentifier", bundle}, {"IOBundleResourceFile", file}};
    mac.plug(disk, {{"DAMediaIcon", icon}});
    return DiskArbitrator::findVolumeIcon(disk);
  };
  const QImage caution = picture("disk1", "unknown", "Removable.icns");
  EXPECT_FALSE(caution.isNull());
  EXPECT_EQ(picture("disk3", "driver", ".icns"), caution);
  EXPECT_NE(picture("disk4", "driver", "Removable.icns"), caution);
}

TEST_F(MacSystem, RemovableVolumesAreReadOnlyOnceAWindowIsInFront) {
  const QTemporaryDir stick;
  const QTemporaryDir internal;
  for (const auto &[disk, folder, isInternal] :
       {std::tuple("disk1s1", &stick, false), std::tuple("disk2s1", &internal, true)}) {
    ASSERT_TRUE(QImage(8, 8, QImage::Format_ARGB32).save(folder->filePath("icon"), "PNG"));
    mac.plug(disk, {{"DADeviceInternal", isInternal},
                    {"DAVolumePath", QUrl::fromLocalFile(folder->path())}});
  }
  start();
  told();
  EXPECT_EQ(platform->volumeFiles().image(stick.filePath("icon")), std::nullopt);
  EXPECT_TRUE(platform->volumeFiles().image(internal.filePath("icon")).has_value());
  QWindow window;
  emit qGuiApp->focusWindowChanged(&window);
  EXPECT_EQ(told(), QStringList{"changed"});
  EXPECT_TRUE(platform->volumeFiles().image(stick.filePath("icon")).has_value());
}

TEST_F(MacSystem, FatVariantsAndProcessesThatUseAVolumeAreFound) {
  mac.fileSystemSubtypes = {{"/Volumes/EFI", 2}};
  mac.processes = {{7, {"/Volumes/EFI", "less"}}, {8, {"/Volumes/EFI", ""}}, {9, {"/", "more"}}};
  start();
  EXPECT_EQ(platform->rawDevices().fileSystemSubtype("/Volumes/EFI"), 2U);
  EXPECT_EQ(platform->rawDevices().physicalBlockSize("null"), std::nullopt);
  EXPECT_EQ(processesUsing(*platform, "/Volumes/EFI"), (QStringList{"less (7)", "? (8)"}));
}

TEST_F(MacSystem, AProcessRestartsItselfToGetCompatibleVersions) {
  mac.executable = "/bin/sh";
  std::string name = "keldra", option = "-c", command = "exit 4$SYSTEM_VERSION_COMPAT";
  char *arguments[] = {name.data(), option.data(), command.data(), nullptr};
  EXPECT_EXIT(prepareProcess(arguments), testing::ExitedWithCode(41), "");
  qputenv("SYSTEM_VERSION_COMPAT", "0");
  prepareProcess(arguments);
  qunsetenv("SYSTEM_VERSION_COMPAT");
}
