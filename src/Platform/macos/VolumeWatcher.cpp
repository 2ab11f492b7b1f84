#include "Platform/macos/VolumeWatcher.h"

#include <DiskArbitration/DiskArbitration.h>

#include "Platform/macos/Values.h"

// The service's callbacks; each hands on which disk it is about and where that is mounted now. A
// volume without media, such as one on the network, has no BSD name, and what is not mounted no
// path.
struct VolumeWatcher::Session {
  explicit Session(VolumeWatcher &owner)
      : watcher(owner), reference(DASessionCreate(kCFAllocatorDefault)) {
    if (!reference) return;
    DARegisterDiskAppearedCallback(reference.get(), nullptr, appeared, this);
    DARegisterDiskDisappearedCallback(reference.get(), nullptr, disappeared, this);
    // The name first: a mounted volume's new name changes its path as well.
    DARegisterDiskDescriptionChangedCallback(reference.get(), nullptr,
                                             kDADiskDescriptionWatchVolumeName, nameChanged, this);
    DARegisterDiskDescriptionChangedCallback(reference.get(), nullptr,
                                             kDADiskDescriptionWatchVolumePath, pathChanged, this);
    DASessionScheduleWithRunLoop(reference.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
  }
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;
  ~Session() {
    if (!reference) return;
    DASessionUnscheduleFromRunLoop(reference.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
    unregister(appeared);
    unregister(disappeared);
    unregister(nameChanged);
    unregister(pathChanged);
  }

  template <typename Callback>
  void unregister(Callback callback) {
    DAUnregisterCallback(reference.get(), reinterpret_cast<void *>(callback), this);
  }

  using Note = void (VolumeWatcher::*)(const QString &media, const QString &path);
  static void tell(DADiskRef disk, void *context, Note note) {
    const Owned<CFDictionaryRef> description(DADiskCopyDescription(disk));
    const CFTypeRef path =
        description ? CFDictionaryGetValue(description.get(), kDADiskDescriptionVolumePathKey)
                    : nullptr;
    (static_cast<Session *>(context)->watcher.*note)(QString::fromUtf8(DADiskGetBSDName(disk)),
                                                     pathOf(path).value_or(QString()));
  }
  static void appeared(DADiskRef disk, void *context) {
    tell(disk, context, &VolumeWatcher::noteAppeared);
  }
  static void disappeared(DADiskRef disk, void *context) {
    tell(disk, context, &VolumeWatcher::noteDisappeared);
  }
  static void nameChanged(DADiskRef disk, CFArrayRef, void *context) {
    tell(disk, context, &VolumeWatcher::noteName);
  }
  static void pathChanged(DADiskRef disk, CFArrayRef, void *context) {
    tell(disk, context, &VolumeWatcher::notePath);
  }

  VolumeWatcher &watcher;
  Owned<DASessionRef> reference;
};

VolumeWatcher::VolumeWatcher() {
  _soon.setSingleShot(true);
  connect(&_soon, &QTimer::timeout, this, [this] {
    _knowsMedia = true;
    emit changed();
  });
  _session = std::make_unique<Session>(*this);
}

VolumeWatcher::~VolumeWatcher() = default;

// Media that are there already are told of, all together, when the watching begins; what is mounted
// then is no news.
void VolumeWatcher::noteAppeared(const QString &media, const QString &path) {
  _soon.start();
  if (path.isEmpty()) return;
  if (!media.isEmpty()) _paths.insert(media, path);
  if (_knowsMedia) emit mounted(path);
}

void VolumeWatcher::noteDisappeared(const QString &media, const QString &path) {
  const QString last = media.isEmpty() ? path : _paths.take(media);
  if (!last.isEmpty()) emit unmounted(last);
  _soon.start();
}

void VolumeWatcher::noteName(const QString &media, const QString &path) {
  if (path.isEmpty() || !_paths.contains(media)) return _soon.start();
  _paths.insert(media, path);
  emit renamed(path);
}

void VolumeWatcher::notePath(const QString &media, const QString &path) {
  if (media.isEmpty()) return _soon.start();
  const QString last = _paths.take(media);
  if (!path.isEmpty()) _paths.insert(media, path);
  if (last == path) return;
  if (last.isEmpty()) {
    emit mounted(path);
  } else if (path.isEmpty()) {
    emit unmounted(last);
  } else {
    emit renamed(path);
  }
}
