// Sessions with the disk service, and what it tells them and is asked.

#include "macos/fake/World.h"

using namespace fake;

namespace {

using When = Answer::When;

struct Disk : Object {
  Disk(Session *owner, const std::string &bsdName, const Dictionary &description = {})
      : Object("DADisk", bsdName), session(owner), last(description) {
    ++owner->references;
    holds.push_back(owner);
  }
  /// Whoever holds on to the text that DADiskGetBSDName gave has it spoilt.
  void end() override {
    for (char &each : std::get<std::string>(value)) each = '?';
  }
  const std::string &name() const { return std::get<std::string>(value); }

  Session *session;
  Dictionary last;  // what is known of it when it is not there any more
};

DADiskRef makeDisk(Session *session, const std::string &name) {
  return session == nullptr ? nullptr : as<DADiskRef>(keep(std::make_unique<Disk>(session, name)));
}

/// The disk of a callback is gone after it.
template <class Call>
void lendDisk(Session *session, const DiskEntry &entry, Call call) {
  Object *const disk = keep(std::make_unique<Disk>(session, entry.name, entry.description));
  call(as<DADiskRef>(disk));
  release(disk);
}

void tell(const std::shared_ptr<Listener> &listener, const DiskEntry &entry) {
  post(listener->session, [entry, known = std::weak_ptr(listener)] {
    if (const auto live = known.lock()) live->call(entry);
  });
}

/// Calls with the disk, perhaps something else, and the context.
template <class Callback, class... More>
std::shared_ptr<Listener> add(DASessionRef reference, CFDictionaryRef match,
                              const std::string &topic, Callback callback, void *context,
                              More... more) {
  expect(match == nullptr, "DARegister...Callback");
  Session *const session = checked<Session>(reference, "DASession", "DARegister...Callback");
  const auto call = [=](const DiskEntry &entry) {
    lendDisk(session, entry, [=](DADiskRef disk) { callback(disk, more..., context); });
  };
  return world().listeners.emplace_back(
      new Listener{session, topic, reinterpret_cast<const void *>(callback), context, call});
}

void complete(DADiskRef disk, DAReturn status, DADiskMountCallback callback, void *context) {
  Object *const dissenter = status == 0 ? nullptr : make("DADissenter", std::int64_t{status});
  callback(disk, as<DADissenterRef>(dissenter), context);
  release(dissenter);
}

/// Takes a request, to be carried out and answered when the test has said.
void take(DADiskRef reference, Answer DiskEntry::*answer,
          const std::function<DAReturn(const DiskEntry &)> &attempt, DADiskMountCallback callback,
          void *context) {
  const Disk *const disk = checked<Disk>(reference, "DADisk", "A request");
  if (disk == nullptr) return;
  const auto carryOut = [name = disk->name(), attempt]() -> DAReturn {
    const DiskEntry *const entry = entryOf(name);
    return entry == nullptr ? kDAReturnNotFound : attempt(*entry);
  };
  const DiskEntry *const entry = entryOf(disk->name());
  const When when = entry == nullptr ? When::InsideTheCall : (entry->*answer).when;
  if (when == When::InsideTheCall) {
    complete(reference, carryOut(), callback, context);
    checked(reference, "DADisk", "A request that called back");
  } else if (when != When::Never) {
    // What the service does, it does however the program's run loop runs.
    post(nullptr, [=, session = disk->session, known = *entry] {
      if (when == When::WhenTheDiskHasVanished) Machine::current().pull(known.name);
      post(session, [=, status = carryOut()] {
        lendDisk(session, known, [=](DADiskRef it) { complete(it, status, callback, context); });
      });
    });
  }
}

}  // namespace

void Session::end() {
  if (!modes.empty()) report("A DASession went while it was scheduled in " + *modes.begin());
  modes.clear();
  std::erase_if(world().listeners, [this](const auto &each) { return each->session == this; });
}

void fake::announce(const std::set<std::string> &topics, const DiskEntry &entry) {
  for (const auto &each : world().listeners) {
    if (topics.contains(each->topic)) tell(each, entry);
  }
}

DASessionRef DASessionCreate(CFAllocatorRef) {
  if (!Machine::current().hasDiskService) return nullptr;
  return as<DASessionRef>(keep(std::make_unique<Session>()));
}

void DASessionScheduleWithRunLoop(DASessionRef reference, CFRunLoopRef loop, CFStringRef mode) {
  Session *const session = checked<Session>(reference, "DASession");
  if (checked(loop, "CFRunLoop") && session != nullptr) session->modes.insert(textOf(mode));
  wake();
}

void DASessionUnscheduleFromRunLoop(DASessionRef reference, CFRunLoopRef loop, CFStringRef mode) {
  Session *const session = checked<Session>(reference, "DASession");
  if (checked(loop, "CFRunLoop") && session != nullptr) session->modes.erase(textOf(mode));
}

DADiskRef DADiskCreateFromBSDName(CFAllocatorRef, DASessionRef session, const char *name) {
  return makeDisk(checked<Session>(session, "DASession"), name);
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, DASessionRef session, CFURLRef url) {
  const std::string path = pathOf(url);
  for (const DiskEntry &each : world().disks) {
    const bool isIt = Machine::current().mountPoint(each.name) == path;
    if (isIt) return makeDisk(checked<Session>(session, "DASession"), each.name);
  }
  return nullptr;
}

const char *DADiskGetBSDName(DADiskRef reference) {
  const Disk *const disk = checked<Disk>(reference, "DADisk");
  if (disk == nullptr || disk->name().starts_with('/')) return nullptr;  // without media
  return disk->name().c_str();
}

CFDictionaryRef DADiskCopyDescription(DADiskRef reference) {
  const Disk *const disk = checked<Disk>(reference, "DADisk");
  if (disk == nullptr) return nullptr;
  const DiskEntry *const entry = entryOf(disk->name());
  const Dictionary &description = entry == nullptr ? disk->last : entry->description;
  return description.empty() ? nullptr : as<CFDictionaryRef>(objectOf(description));
}

DAReturn DADissenterGetStatus(DADissenterRef dissenter) {
  return static_cast<DAReturn>(valueOf<std::int64_t>(dissenter, "DADissenter"));
}

void DARegisterDiskAppearedCallback(DASessionRef session, CFDictionaryRef match,
                                    DADiskAppearedCallback callback, void *context) {
  const auto added = add(session, match, "appeared", callback, context);
  for (const DiskEntry &each : world().disks) tell(added, each);
}

void DARegisterDiskDisappearedCallback(DASessionRef session, CFDictionaryRef match,
                                       DADiskDisappearedCallback callback, void *context) {
  add(session, match, "disappeared", callback, context);
}

void DARegisterDiskDescriptionChangedCallback(DASessionRef session, CFDictionaryRef match,
                                              CFArrayRef watch,
                                              DADiskDescriptionChangedCallback callback,
                                              void *context) {
  add(session, match, textOf(CFArrayGetValueAtIndex(watch, 0)), callback, context, watch);
}

void DAUnregisterCallback(DASessionRef session, void *callback, void *context) {
  const Session *const object = checked<Session>(session, "DASession");
  const auto count = std::erase_if(world().listeners, [=](const auto &each) {
    return each->session == object && each->callback == callback && each->context == context;
  });
  if (count == 0) report("DAUnregisterCallback: no such callback is registered");
}

void DADiskMountWithArguments(DADiskRef disk, CFURLRef url, DADiskMountOptions,
                              DADiskMountCallback callback, void *context, CFStringRef *) {
  const auto path = url == nullptr ? std::nullopt : std::optional(pathOf(url));
  const auto attempt = [path](const DiskEntry &entry) -> DAReturn {
    if (entry.onMount.status != 0) return static_cast<DAReturn>(entry.onMount.status);
    if (!entry.description.contains("DAVolumeKind")) return kDAReturnUnsupported;
    if (entry.description.contains("DAVolumePath")) return kDAReturnBusy;
    Machine &mac = Machine::current();
    mac.mount(entry.name, path.value_or(mac.volumesFolder + "/" + entry.name));
    return kDAReturnSuccess;
  };
  take(disk, &DiskEntry::onMount, attempt, callback, context);
}

void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options, DADiskUnmountCallback callback,
                   void *context) {
  const auto attempt = [options](const DiskEntry &entry) -> DAReturn {
    if (!entry.description.contains("DAVolumePath")) return kDAReturnNotMounted;
    const auto refusal = static_cast<DAReturn>(entry.onUnmount.status);
    const bool isOverruled = options == kDADiskUnmountOptionForce && refusal == kDAReturnBusy;
    if (refusal != kDAReturnSuccess && !isOverruled) return refusal;
    Machine::current().unmount(entry.name);
    return kDAReturnSuccess;
  };
  take(disk, &DiskEntry::onUnmount, attempt, callback, context);
}
