#include "Platform/linux/VolumeEvents.h"

#include <QSet>
#include <algorithm>

#include "Platform/Platform.h"

void VolumeEvents::noteKnownMedia(const MediaCatalog &media) {
  for (auto mount = _told.begin(); mount != _told.end(); ++mount) {
    if (media.onDevice(mount.key().device) != nullptr) *mount = true;
  }
}

void VolumeEvents::accept(const MountTable &table, const MediaCatalog &media) {
  for (const Mount &mount : table.mounts()) {
    if (!_told.contains(mount)) _told.insert(mount, false);
  }
  noteKnownMedia(media);
}

QList<VolumeEvent> VolumeEvents::forget(const std::function<bool(const Mount &)> &isGone) {
  QList<Mount> gone;
  _told.removeIf([&](const auto &mount) {
    if (!isGone(mount.key())) return false;
    if (*mount) gone.append(mount.key());
    return true;
  });
  std::ranges::sort(gone, {}, &Mount::id);
  QList<VolumeEvent> events;
  for (const Mount &mount : gone) {
    events.append({kNSWorkspaceDidUnmountNotification, mount.mountPoint});
  }
  return events;
}

QList<VolumeEvent> VolumeEvents::news(const MountTable &table, const MediaCatalog &media) {
  noteKnownMedia(media);
  const QSet<Mount> current(table.mounts().begin(), table.mounts().end());
  QList<VolumeEvent> events = forget([&](const Mount &mount) { return !current.contains(mount); });
  for (const Mount &mount : table.mounts()) {
    if (_told.contains(mount) || media.onDevice(mount.device) == nullptr) continue;
    _told.insert(mount, true);
    events.append({kNSWorkspaceDidMountNotification, mount.mountPoint});
  }
  return events;
}

bool VolumeEvents::hasToldOf(quint64 device) const {
  return std::any_of(_told.keyBegin(), _told.keyEnd(),
                     [&](const Mount &mount) { return mount.device == device; });
}

QList<VolumeEvent> VolumeEvents::pulled(quint64 device) {
  return forget([&](const Mount &mount) { return mount.device == device; });
}
