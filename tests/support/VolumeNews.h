#pragma once

#include <QStringList>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"

/// Notes what a platform tells of volumes for as long as the observer lives: "+PATH", "-PATH" or
/// "~PATH" for a mount, an unmount or a rename; "changed" for an event without a path.
inline void noteVolumeNews(NotificationCenter &workspace, QObject &observer, QStringList &events) {
  for (const auto &[name, sign] : {std::pair(kNSWorkspaceDidMountNotification, "+"),
                                   {kNSWorkspaceDidUnmountNotification, "-"},
                                   {kNSWorkspaceDidRenameVolumeNotification, "~"}}) {
    workspace.addObserver(&observer, name, [&events, sign = QString(sign)](const auto &note) {
      const QVariant path = note.userInfo.value(kNSDevicePathKey);
      events << (path.isValid() ? sign + path.toString() : QStringLiteral("changed"));
    });
  }
}
