#include "Platform/macos/VolumeWatcher.h"

#include <DiskArbitration/DiskArbitration.h>

#include "Platform/macos/Observation.h"

// The service's callbacks. Each passes on the disk's BSD name and its present mount point. A volume
// without media, such as one on the network, has no BSD name, and an unmounted volume has no path.
struct VolumeWatcher::Session {
  explicit Session(VolumeWatcher &owner)
      : watcher(owner), reference(DASessionCreate(kCFAllocatorDefault)) {
    using Watcher = VolumeWatcher;
    const DASessionRef session = reference.get();
    if (session == nullptr) return;
    DARegisterDiskAppearedCallback(session, nullptr, tell<&Watcher::noteAppeared>, this);
    DARegisterDiskDisappearedCallback(session, nullptr, tell<&Watcher::noteDisappeared>, this);
    // The name first, because a new name of a mounted volume also changes its path.
    DARegisterDiskDescriptionChangedCallback(session, nullptr, kDADiskDescriptionWatchVolumeName,
                                             tellChange<&Watcher::noteName>, this);
    DARegisterDiskDescriptionChangedCallback(session, nullptr, kDADiskDescriptionWatchVolumePath,
                                             tellChange<&Watcher::notePath>, this);
    DASessionScheduleWithRunLoop(session, CFRunLoopGetMain(), kCFRunLoopCommonModes);
  }
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;
  ~Session() {
    if (!reference) return;
    DASessionUnscheduleFromRunLoop(reference.get(), CFRunLoopGetMain(), kCFRunLoopCommonModes);
  }

  using Note = void (VolumeWatcher::*)(const QString &media, const QString &path);
  template <Note note>
  static void tell(DADiskRef disk, void *context) {
    const Owned<CFDictionaryRef> description(DADiskCopyDescription(disk));
    const CFTypeRef path =
        description ? CFDictionaryGetValue(description.get(), ::kDADiskDescriptionVolumePathKey)
                    : nullptr;
    (static_cast<Session *>(context)->watcher.*note)(QString::fromUtf8(DADiskGetBSDName(disk)),
                                                     pathOf(path).value_or(QString()));
  }
  template <Note note>
  static void tellChange(DADiskRef disk, CFArrayRef, void *context) {
    tell<note>(disk, context);
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
  _starts = std::make_unique<Observation>(
      CFNotificationCenterGetDarwinNotifyCenter(),
      QStringLiteral("com.apple.diskarbitrationd.launched"), this,
      [](CFNotificationCenterRef, void *watcher, CFNotificationName, const void *,
         CFDictionaryRef) { static_cast<VolumeWatcher *>(watcher)->watch(); });
  watch();
}

// A session is valid only for the service that it was opened with, so each start opens a new one.
void VolumeWatcher::watch() {
  const bool isAnew = _session != nullptr;
  _session.reset();
  _paths.clear();
  _knowsMedia = false;
  _session = std::make_unique<Session>(*this);
  if (isAnew) emit serviceStarted();
}

VolumeWatcher::~VolumeWatcher() = default;

// At the start, the service announces all present media together. Their mounts are not news.
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

#include "moc_VolumeWatcher.cpp"
