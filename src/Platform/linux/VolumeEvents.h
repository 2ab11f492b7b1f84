#pragma once

// Decides which mounts and unmounts are announced.
//
// Compares the mounts with those announced already, and announces only volumes on media that the
// disk service knows or has known. A mount that appears before the service has announced its medium
// waits for the medium. When a medium is pulled, its volumes are announced as unmounted at once,
// though the kernel's table may still have them, and not again when the table drops them.

#include <QHash>
#include <QList>

#include "Platform/linux/MediaCatalog.h"
#include "Platform/linux/MountTable.h"

struct VolumeEvent {
  QString name;  // of the workspace notification
  QString mountPoint;
};

class VolumeEvents {
 public:
  /// Marks all present mounts as known, without announcing them.
  void accept(const MountTable &table, const MediaCatalog &media);

  /// The events since the last call, in order of occurrence as far as known.
  QList<VolumeEvent> news(const MountTable &table, const MediaCatalog &media);

  /// Whether a mount of this device was announced or accepted, and its unmount was not announced.
  bool hasToldOf(quint64 device) const;

  /// The unmounts for a removed medium, in the order in which its volumes were mounted.
  QList<VolumeEvent> pulled(quint64 device);

 private:
  QList<VolumeEvent> forget(const std::function<bool(const Mount &)> &isGone);
  void noteKnownMedia(const MediaCatalog &media);

  QHash<Mount, bool> _told;  // and whether their media are or were known
};
