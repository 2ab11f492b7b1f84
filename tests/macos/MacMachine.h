#pragma once

// The backend on a fake of a Mac, with one ESP, and what it tells.

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "Foundation/NotificationCenter.h"
#include "Platform/common/SystemFilesRoot.h"
#include "Platform/macos/MacPlatform.h"
#include "macos/fake/Fake.h"

class MacMachine : public testing::Test {
 protected:
  static constexpr char kEsp[] = "disk0s1";

  void SetUp() override {
    mac.plug("disk0", {{"DAMediaContent", "GUID_partition_scheme"}});
    mac.plug(kEsp, {{"DAMediaName", "EFI System Partition"},
                    {"DAVolumeKind", "msdos"},
                    {"DAVolumeName", "EFI"}});
  }

  void start() {
    platform = makeMacPlatform(systemFilesRoot());
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
    fake::serve();
    QCoreApplication::processEvents();
    return std::exchange(news, {});
  }

  fake::Machine mac;
  std::unique_ptr<Platform> platform;
  QStringList news;

 private:
  QObject _observer;
};
