// The registry, the user's login items and preferences, files, drivers, devices and processes.

#include <unistd.h>

#include <QFile>

#include "DiskArbitrator/DiskArbitrator.h"
#include "macos/MacMachine.h"

class MacSystem : public MacMachine {};

TEST_F(MacSystem, MediaAreThoseOfTheRegistryThatHaveAName) {
  using fake::Listing;
  mac.plug("disk1", {}, Listing::Nameless);
  mac.plug("disk2", {}, Listing::Unreadable);
  mac.plug("disk3", {}, Listing::Absent);
  mac.plug("disk10s1", {});
  mac.plug("disk10", {});
  start();
  const MediaRegistry &registry = platform->mediaRegistry();
  EXPECT_EQ(registry.mediaNames(), (QStringList{"disk0", kEsp, "disk10s1", "disk10"}));
  EXPECT_EQ(registry.mediaNamesOnDisk("disk10"), (QStringList{"disk10s1", "disk10"}));
  EXPECT_EQ(registry.mediaNamesOnDisk("disk1"), QStringList{});
  mac.hasMediaRegistry = false;
  EXPECT_EQ(registry.mediaNames(), QStringList{});
}

TEST_F(MacSystem, LoginItemsGoByTheirLocation) {
  mac.loginItems = {std::nullopt, "/Applications/Other.app", mac.mainBundle};
  const auto places = [&] {
    QStringList list;
    for (const auto &item : mac.loginItems) {
      list += QString::fromStdString(item.value_or("?"));
    }
    return list;
  };
  start();
  LoginItems &items = platform->loginItems();
  items.insertOwnItem();
  const auto snapshot = *items.snapshot();
  ASSERT_EQ(snapshot.size(), 4);
  EXPECT_EQ(snapshot.at(0).location, std::nullopt);
  EXPECT_EQ(snapshot.at(3).location, items.ownLocation());

  items.remove(snapshot.at(0));
  items.remove(snapshot.at(3));
  EXPECT_EQ(places(), (QStringList{"?", "/Applications/Other.app", "/Applications/Keldra.app"}))
      << "one of two, and none that is unknown";

  mac.takesLoginItems = false;
  items.insertOwnItem();
  EXPECT_EQ(mac.loginItems.size(), 3U);
  mac.hasLoginItemList = false;
  EXPECT_EQ(items.snapshot(), std::nullopt);
  items.insertOwnItem();
  items.remove(snapshot.at(3));
  EXPECT_EQ(mac.loginItems.size(), 3U);
}

TEST_F(MacSystem, PreferencesAreTheProgramsOwnAndMayBeOfAnyType) {
  mac.preferences = {{"list", fake::Dictionary{}}, {"text", "yes"}};
  start();
  UserDefaults &defaults = platform->userDefaults();
  EXPECT_FALSE(defaults.object("list").isValid());
  EXPECT_EQ(defaults.object("text"), "yes");
  defaults.setBool("RunAtload", false);
  EXPECT_FALSE(mac.preferences.contains("RunAtload"));
  defaults.synchronize();
  EXPECT_EQ(std::get<bool>(mac.preferences.at("RunAtload")), false);
}

TEST_F(MacSystem, APartitionShowsThePictureOfItsDriver) {
  const std::string driver = "/System/Library/Extensions/com.brinmoor.Keldra.StorageIcons.kext";
  const auto iconFrom = [](const std::string &bundle) {
    return fake::Dictionary{{"CFBundleIdentifier", bundle},
                            {"IOBundleResourceFile", "Removable.icns"}};
  };
  mac.driverBundles = {{"driver", driver}, {"gone", "/no/such/bundle"}};
  mac.plug("disk1", {{"DAMediaIcon", iconFrom("driver")}});
  mac.plug("disk2", {{"DAMediaIcon", iconFrom("gone")}});
  mac.plug("disk3", {{"DAMediaIcon", iconFrom("unknown")}});
  start();
  const CurrentPlatform current(*platform);
  const QImage caution = DiskArbitrator::findVolumeIcon("disk3");
  EXPECT_FALSE(caution.isNull());
  EXPECT_EQ(DiskArbitrator::findVolumeIcon("disk2"), caution);
  EXPECT_NE(DiskArbitrator::findVolumeIcon("disk1"), caution);
  EXPECT_EQ(platform->systemFiles().bundleResource(QString::fromStdString(driver), "No", "icns"),
            QString());
}

TEST_F(MacSystem, DevicesAndFileSystemsAreAskedThemselves) {
  mac.fileSystemSubtypes = {{"/Volumes/EFI", 2}};
  start();
  const RawDevices &devices = platform->rawDevices();
  EXPECT_EQ(devices.fileSystemSubtype("/Volumes/EFI"), 2U);
  EXPECT_EQ(devices.fileSystemSubtype("/Volumes/Other"), std::nullopt);
  EXPECT_EQ(devices.logicalBlockSize("no such device"), std::nullopt);
  EXPECT_EQ(devices.physicalBlockSize("null"), std::nullopt);
  if (access("/dev/loop0", R_OK) != 0) GTEST_SKIP() << "no device here may be read";
  EXPECT_GE(devices.logicalBlockSize("loop0").value_or(0), 512U);
  EXPECT_GE(devices.physicalBlockSize("loop0").value_or(0), 512U);
}

TEST_F(MacSystem, ProcessesThatUseAVolumeAreNamed) {
  mac.processes["/Volumes/EFI"] = {{7, "less"}, {8, ""}};
  start();
  EXPECT_EQ(platform->processesUsing("/Volumes/EFI"), (QStringList{"less (7)", "? (8)"}));
  EXPECT_EQ(platform->processesUsing("/Volumes/Other"), QStringList{});
}
