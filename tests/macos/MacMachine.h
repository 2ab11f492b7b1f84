#pragma once

// The backend on a fake Mac with one ESP, and the backend's notifications.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QUuid>

#include "Platform/macos/MacPlatform.h"
#include "macos/fake/Fake.h"
#include "support/VolumeNews.h"

class MacMachine : public testing::Test {
 protected:
  static constexpr char kEsp[] = "disk0s1";
  static constexpr char kServiceStart[] = "com.apple.diskarbitrationd.launched";

  MacMachine() {
    mac.plug("disk0", {{"DAMediaContent", "GUID_partition_scheme"},
                       {"DAMediaBSDUnit", 0},
                       {"DAMediaWritable", true}});
    mac.plug(kEsp, {{"DAMediaName", "EFI System Partition"},
                    {"DAMediaBSDUnit", 0},
                    {"DAMediaWritable", true},
                    {"DAMediaUUID", QUuid("0e2f0b4c-1111-4c4c-8d8d-121212121212")},
                    {"DAVolumeKind", "msdos"},
                    {"DAVolumeName", "EFI"}});
  }

  void start(const QString &root = KELDRA_SYSTEM_FILES) {
    platform = makeMacPlatform(root);
    noteVolumeNews(platform->workspaceNotificationCenter(), _observer, news);
  }

  /// The notifications since the last call, as `noteVolumeNews` records them.
  QStringList told() {
    settle();
    return std::exchange(news, {});
  }

  static void settle() {
    fake::serve();
    QCoreApplication::processEvents();
  }

  fake::Machine mac;
  std::unique_ptr<Platform> platform;
  QStringList news;

 private:
  QObject _observer;
};
