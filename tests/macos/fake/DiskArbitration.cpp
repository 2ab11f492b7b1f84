#include "macos/fake/DiskArbitration.h"

#include <algorithm>

#include "macos/fake/Values.h"

namespace fake {

namespace {

using Kind = Registration::Kind;

void call(Session &session, const Registration &registration, const DiskEntry &last,
          const std::set<std::string> &changed) {
  const DiskEntry *const present = entryOf(last.name);
  auto *const disk = make<Disk>("a callback", &session, last.name);
  disk->snapshot = (present == nullptr ? last : *present).description;
  disk->hasMedia = last.description.contains("DAMediaBSDName");
  const auto ref = as<DADiskRef>(disk);
  if (registration.kind == Kind::Changed) {
    // Texts of their own, as they come out of a message: not the constants themselves.
    Object *const keys = objectOf(Array(changed.begin(), changed.end()), "a callback");
    reinterpret_cast<DADiskDescriptionChangedCallback>(registration.callback)(
        ref, as<CFArrayRef>(keys), registration.context);
    release(*keys);
  } else {
    reinterpret_cast<DADiskAppearedCallback>(registration.callback)(ref, registration.context);
  }
  release(*disk);
}

void postTo(Session &session, const std::shared_ptr<Registration> &registration,
            const DiskEntry &entry, const std::set<std::string> &changed = {}) {
  const std::weak_ptr<Registration> stillRegistered = registration;
  post({[&session](const std::string &mode) { return session.isServedIn(mode); },
        [&session, stillRegistered, entry, changed] {
          if (const auto live = stillRegistered.lock()) call(session, *live, entry, changed);
        }});
}

std::set<std::string> watchedAmong(const std::set<std::string> &changed,
                                   const Registration &registration) {
  std::set<std::string> result;
  for (const std::string &key : changed) {
    if (!registration.watched.has_value() || registration.watched->contains(key)) {
      result.insert(key);
    }
  }
  return result;
}

Session *sessionOrNull(DASessionRef session, const char *function = __builtin_FUNCTION()) {
  return session == nullptr ? nullptr : checked<Session>(session, function);
}

template <class Change>
void changeModes(DASessionRef ref, CFRunLoopRef loop, CFStringRef mode, Change change) {
  Session *const session = sessionOrNull(ref, "DASession(Un)schedule");
  const auto name = textOf(mode);
  if (loop != CFRunLoopGetMain()) report("A DASession is not on the main run loop");
  if (session != nullptr && name.has_value()) change(session->modes, *name);
}

void addRegistration(DASessionRef ref, CFDictionaryRef match, Registration registration) {
  Session *const session = sessionOrNull(ref, "DARegister...Callback");
  if (session == nullptr) return;
  if (match != nullptr) report("DARegister...Callback: matching is not known here");
  session->registrations.push_back(std::make_shared<Registration>(std::move(registration)));
  if (session->registrations.back()->kind != Kind::Appeared) return;
  for (const DiskEntry &each : world().disks) {
    postTo(*session, session->registrations.back(), each);
  }
}

}  // namespace

Session::Session() : Object(kType) {
  world().sessions.push_back(this);
}

void Session::end() {
  if (!modes.empty()) report("A DASession went while it was scheduled in " + *modes.begin());
  std::erase(world().sessions, this);
  modes.clear();
  registrations.clear();
}

bool Session::isServedIn(const std::string &mode) const {
  return modes.contains(mode) || (modes.contains("kCFRunLoopCommonModes") && isCommonMode(mode));
}

Disk::Disk(Session *owner, std::string bsdName)
    : Object(kType), session(owner), name(std::move(bsdName)) {
  retain(*owner);
  holds.push_back(owner);
}

void Disk::end() {
  std::fill(name.begin(), name.end(), '?');
}

void announce(Kind kind, const DiskEntry &entry, const std::set<std::string> &changed) {
  for (Session *session : world().sessions) {
    for (const auto &each : session->registrations) {
      const std::set<std::string> keys = watchedAmong(changed, *each);
      if (each->kind == kind && (kind != Kind::Changed || !keys.empty())) {
        postTo(*session, each, entry, keys);
      }
    }
  }
}

}  // namespace fake

using namespace fake;

DASessionRef DASessionCreate(CFAllocatorRef) {
  return Machine::current().hasDiskService ? as<DASessionRef>(make<Session>(__func__)) : nullptr;
}

void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef loop, CFStringRef mode) {
  changeModes(session, loop, mode, [](auto &modes, const auto &name) { modes.insert(name); });
  wake();
}

void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef loop, CFStringRef mode) {
  changeModes(session, loop, mode, [](auto &modes, const auto &name) { modes.erase(name); });
}

DADiskRef DADiskCreateFromBSDName(CFAllocatorRef, DASessionRef session, const char *name) {
  Session *const object = sessionOrNull(session);
  if (object == nullptr || name == nullptr) return nullptr;
  return as<DADiskRef>(make<Disk>(__func__, object, name));
}

DADiskRef DADiskCreateFromVolumePath(CFAllocatorRef, DASessionRef session, CFURLRef path) {
  Session *const object = sessionOrNull(session);
  const auto *const url = path == nullptr ? nullptr : checked<Url>(path);
  if (object == nullptr || url == nullptr) return nullptr;
  for (const DiskEntry &each : world().disks) {
    if (Machine::current().mountPoint(each.name) != url->path()) continue;
    auto *const disk = make<Disk>(__func__, object, each.name);
    disk->hasMedia = each.description.contains("DAMediaBSDName");
    return as<DADiskRef>(disk);
  }
  return nullptr;
}

const char *DADiskGetBSDName(DADiskRef disk) {
  const auto *const object = disk == nullptr ? nullptr : checked<Disk>(disk);
  return object == nullptr || !object->hasMedia ? nullptr : object->name.c_str();
}

CFDictionaryRef DADiskCopyDescription(DADiskRef disk) {
  const auto *const object = disk == nullptr ? nullptr : checked<Disk>(disk);
  if (object == nullptr) return nullptr;
  const DiskEntry *const entry = entryOf(object->name);
  if (!object->snapshot.has_value() && entry == nullptr) return nullptr;
  return as<CFDictionaryRef>(objectOf(
      object->snapshot.value_or(entry == nullptr ? Dictionary() : entry->description), __func__));
}

DAReturn DADissenterGetStatus(DADissenterRef dissenter) {
  const auto *const object = checked<Dissenter>(dissenter);
  return object == nullptr ? kDAReturnError : object->status;
}

void DARegisterDiskAppearedCallback(DASessionRef session, CFDictionaryRef match,
                                    DADiskAppearedCallback callback, void *context) {
  addRegistration(session, match,
                  {Kind::Appeared, {}, reinterpret_cast<void *>(callback), context});
}

void DARegisterDiskDisappearedCallback(DASessionRef session, CFDictionaryRef match,
                                       DADiskDisappearedCallback callback, void *context) {
  addRegistration(session, match,
                  {Kind::Disappeared, {}, reinterpret_cast<void *>(callback), context});
}

void DARegisterDiskDescriptionChangedCallback(DASessionRef session, CFDictionaryRef match,
                                              CFArrayRef watch,
                                              DADiskDescriptionChangedCallback callback,
                                              void *context) {
  std::optional<std::set<std::string>> watched;
  if (watch != nullptr) {
    watched.emplace();
    for (CFIndex index = 0; index < CFArrayGetCount(watch); ++index) {
      watched->insert(textOf(CFArrayGetValueAtIndex(watch, index)).value_or(""));
    }
  }
  addRegistration(session, match,
                  {Kind::Changed, watched, reinterpret_cast<void *>(callback), context});
}

void DAUnregisterCallback(DASessionRef session, void *callback, void *context) {
  Session *const object = sessionOrNull(session);
  if (object == nullptr) return;
  const auto count = std::erase_if(object->registrations, [&](const auto &each) {
    return each->callback == callback && each->context == context;
  });
  if (count == 0) report("DAUnregisterCallback: no such callback is registered");
}
