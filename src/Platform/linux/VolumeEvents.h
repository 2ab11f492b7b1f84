#pragma once

// Tells which mounts and unmounts are news.
//
// Mounts are compared with those that were told of already, and only volumes on media that the disk
// service knows, or has known, are told of. A mount that the kernel shows before the service has
// announced its medium waits for that. A medium that was pulled is told of as unmounted though the
// kernel's table may still show it, and no second time when the table drops it.

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
  /// Whatever is mounted now is no news any more.
  void accept(const MountTable &table, const MediaCatalog &media);

  /// The news since the last call, in the order in which they happened as far as that is known.
  QList<VolumeEvent> news(const MountTable &table, const MediaCatalog &media);

  /// Whether a mount of this device was told of, or accepted, and its end was not.
  bool hasToldOf(quint64 device) const;

  /// The news that a medium's removal is, in the order in which the volumes were mounted.
  QList<VolumeEvent> pulled(quint64 device);

 private:
  QList<VolumeEvent> forget(const std::function<bool(const Mount &)> &isGone);
  void noteKnownMedia(const MediaCatalog &media);

  QHash<Mount, bool> _told;  // and whether their media are or were known
};
