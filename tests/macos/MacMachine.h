#pragma once

// The backend on a fake of a Mac, with one ESP, and what it tells.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QUuid>

#include "Foundation/NotificationCenter.h"
#include "Platform/macos/MacPlatform.h"
#include "macos/fake/Fake.h"

class MacMachine : public testing::Test {
 protected:
  static constexpr char kEsp[] = "disk0s1";

  void SetUp() override {
    mac.plug("disk0", {{"DAMediaContent", "GUID_partition_scheme"},
                       {"DAMediaBSDUnit", 0},
                       {"DAMediaWritable", true},
                       // Of types that they should not be of.
                       {"DAMediaName", 7},
                       {"DAVolumeKind", QVariantMap()},
                       {"DAMediaIcon", "no dictionary"},
                       {"DAVolumeUUID", "no UUID"}});
    mac.plug(kEsp, {{"DAMediaName", "EFI System Partition"},
                    {"DAMediaBSDUnit", 0},
                    {"DAMediaWritable", true},
                    {"DAMediaUUID", QUuid("0e2f0b4c-1111-4c4c-8d8d-121212121212")},
                    {"DAVolumeKind", "msdos"},
                    {"DAVolumeName", "EFI"}});
  }

  void start(const QString &root = KELDRA_SYSTEM_FILES) {
    platform = makeMacPlatform(root);
    for (const auto &[name, sign] : {std::pair(kNSWorkspaceDidMountNotification, "+"),
                                     std::pair(kNSWorkspaceDidUnmountNotification, "-"),
                                     std::pair(kNSWorkspaceDidRenameVolumeNotification, "~")}) {
      platform->workspaceNotificationCenter().addObserver(
          &_observer, name, [this, sign = sign](const Notification &note) {
            news += sign + note.userInfo.value(kNSDevicePathKey).toString();
          });
    }
  }

  /// What was told since the last call: "+PATH", "-PATH" and "~PATH" for a mount, an unmount and a
  /// rename, "+" for anything else.
  QStringList told() {
    settle();
    return std::exchange(news, {});
  }

  static void settle(fake::Mode mode = fake::Mode::Default) {
    fake::serve(mode);
    QCoreApplication::processEvents();
  }

  fake::Machine mac;
  std::unique_ptr<Platform> platform;
  QStringList news;

 private:
  QObject _observer;
};
