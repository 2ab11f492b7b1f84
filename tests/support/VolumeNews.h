#pragma once

#include <QStringList>
#include <QTest>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"

/// Records a platform's announcements of volumes while the observer exists: "+PATH", "-PATH" or
/// "~PATH" for a mount, an unmount or a rename; "changed" for an event without a path.
inline void noteVolumeNews(NotificationCenter &workspace, QObject &observer, QStringList &events) {
  for (const auto &[name, sign] : {std::pair(kNSWorkspaceDidMountNotification, "+"),
                                   {kNSWorkspaceDidUnmountNotification, "-"},
                                   {kNSWorkspaceDidRenameVolumeNotification, "~"}}) {
    workspace.addObserver(&observer, name, [&events, mark = QString(sign)](const auto &note) {
      const QVariant path = note.userInfo.value(kNSDevicePathKey);
      events << (path.isValid() ? mark + path.toString() : QStringLiteral("changed"));
    });
  }
}

/// Blocks until the answer comes.
inline QStringList processesUsing(Platform &platform, const QString &mountPoint) {
  std::optional<QStringList> processes;
  platform.volumeFiles().findProcessesUsing(mountPoint,
                                            [&](const QStringList &found) { processes = found; });
  const bool isAnswered = QTest::qWaitFor([&] { return processes.has_value(); }, 10000);
  return isAnswered ? *processes : QStringList();
}
