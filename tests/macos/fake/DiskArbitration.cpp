// Sessions with the disk service, their callbacks and their requests.

#include <QCoreApplication>
#include <QThread>

#include "macos/fake/World.h"

using namespace fake;

namespace {

struct Disk : Object {
  Disk(Session *owner, const QString &name)
      : Object("DADisk", name), session(owner), bytes(name.toUtf8()) {
    ++owner->references;
    holds.push_back(owner);
  }

  Session *session;
  QByteArray bytes;                     // of the name
  std::optional<QVariantMap> snapshot;  // the disk's description when a callback was queued
};

Session *sessionOf(const void *reference) {
  return static_cast<Session *>(checked(reference, "DASession"));
}

Disk *diskOf(const void *reference) {
  return static_cast<Disk *>(checked(reference, "DADisk"));
}

void tell(const Listener &listener, const QString &disk) {
  post(listener.session, [disk, description = world().disks.value(disk), call = listener.call] {
    call(disk, description);
  });
}

/// Adds a callback whose arguments are the disk, perhaps another value, and the context.
template <class Callback, class... More>
void add(DASessionRef reference, const QString &topic, Callback callback, void *context,
         More... more) {
  Session *const session = sessionOf(reference);
  const auto call = [=](const QString &name, const QVariantMap &description) {
    auto *const disk = new Disk(session, name);  // deleted after the call
    disk->snapshot = description;
    callback(as<DADiskRef>(disk), more..., context);
    release(disk);
  };
  world().listeners.emplace_back(Listener{session, topic, context, call});
}

void complete(DADiskRef disk, DAReturn status, DADiskMountCallback callback, void *context) {
  if (status == kDAReturnSuccess) return callback(disk, nullptr, context);
  auto *const dissenter = new Object("DADissenter", status);
  callback(disk, as<DADissenterRef>(dissenter), context);
  release(dissenter);
}

/// Accepts a request. It is carried out and answered when the run loop of its session runs.
void take(DADiskRef reference, const std::function<DAReturn(const QString &)> &attempt,
          DADiskMountCallback callback, void *context) {
  // On the main thread, the request's password prompt would block the program's windows.
  expect(QThread::currentThread() != qApp->thread());
  const QString name = diskOf(reference)->value.toString();
  const bool isKnown = world().disks.contains(name);
  const quint32 refusal = Machine::current().refusals.value(name);
  const auto status = isKnown ? static_cast<DAReturn>(refusal) : kDAReturnBadArgument;
  if (status != 0) return complete(reference, status, callback, context);
  post(diskOf(reference)->session, [=] { complete(reference, attempt(name), callback, context); });
}

}  // namespace

Session::~Session() {
  if (!modes.isEmpty()) report("A DASession went while it was scheduled");
  std::erase_if(world().listeners, [this](const auto &each) { return each.session == this; });
  std::erase_if(world().deliveries, [this](const auto &each) { return each.first == this; });
}

void fake::announce(const QStringList &topics, const QString &disk) {
  for (const auto &each : world().listeners) {
    if (topics.contains(each.topic)) tell(each, disk);
  }
}

DASessionRef DASessionCreate(CFAllocatorRef) {
  if (!Machine::current().hasDiskService) return nullptr;
  setWatchKeys(true);
  return as<DASessionRef>(new Session);
}

void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef, CFStringRef mode) {
  sessionOf(session)->modes.append(textOf(mode));
}

void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef, CFStringRef mode) {
  sessionOf(session)->modes.removeOne(textOf(mode));
}

DADiskRef DADiskCreateFromBSDName(CFAllocatorRef, DASessionRef session, const char *name) {
  return as<DADiskRef>(new Disk(sessionOf(session), QString::fromUtf8(name)));
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, DASessionRef session, CFURLRef url) {
  for (const QString &each : world().disks.keys()) {
    const bool isIt = Machine::current().mountPoint(each) == pathOf(url);
    if (isIt) return as<DADiskRef>(new Disk(sessionOf(session), each));
  }
  return nullptr;
}

const char *DADiskGetBSDName(DADiskRef reference) {
  const QByteArray &name = diskOf(reference)->bytes;
  return name.startsWith('/') ? nullptr : name.constData();  // without media
}

CFDictionaryRef DADiskCopyDescription(DADiskRef reference) {
  const Disk *const disk = diskOf(reference);
  const QVariantMap live = world().disks.value(disk->value.toString());
  const QVariantMap description = disk->snapshot.value_or(live);
  return description.isEmpty() ? nullptr : as<CFDictionaryRef>(objectOf(description));
}

DAReturn DADissenterGetStatus(DADissenterRef dissenter) {
  return valueOf(dissenter, "DADissenter").toInt();
}

void DARegisterDiskAppearedCallback(DASessionRef session, CFDictionaryRef,
                                    DADiskAppearedCallback callback, void *context) {
  add(session, "appeared", callback, context);
  const Listener added = world().listeners.back();
  for (const QString &each : world().disks.keys()) tell(added, each);
}

void DARegisterDiskDisappearedCallback(DASessionRef session, CFDictionaryRef,
                                       DADiskDisappearedCallback callback, void *context) {
  add(session, "disappeared", callback, context);
}

void DARegisterDiskDescriptionChangedCallback(DASessionRef session, CFDictionaryRef,
                                              CFArrayRef watch,
                                              DADiskDescriptionChangedCallback callback,
                                              void *context) {
  add(session, textOf(CFArrayGetValueAtIndex(watch, 0)), callback, context, watch);
}

void DADiskMountWithArguments(DADiskRef disk, CFURLRef url, DADiskMountOptions,
                              DADiskMountCallback callback, void *context, CFStringRef *) {
  const auto attempt = [path = url ? pathOf(url) : QString()](const QString &name) -> DAReturn {
    Machine &mac = Machine::current();
    if (!world().disks.value(name).contains("DAVolumeKind")) return kDAReturnUnsupported;
    if (!mac.mountPoint(name).isEmpty()) return kDAReturnBusy;
    mac.mount(name, path.isEmpty() ? "/Volumes/" + name : path);
    return kDAReturnSuccess;
  };
  take(disk, attempt, callback, context);
}

void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options, DADiskUnmountCallback callback,
                   void *context) {
  const auto attempt = [options](const QString &name) -> DAReturn {
    constexpr DAReturn kUnixBusy = 0xC010;
    Machine &mac = Machine::current();
    if (mac.mountPoint(name).isEmpty()) return kDAReturnNotMounted;
    const bool isForced = options == kDADiskUnmountOptionForce;
    if (mac.busyVolumes.contains(name) && !isForced) return kUnixBusy;
    mac.unmount(name);
    return kDAReturnSuccess;
  };
  take(disk, attempt, callback, context);
}
