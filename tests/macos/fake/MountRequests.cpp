// What the disk service makes of requests.

#include <functional>

#include "macos/fake/DiskArbitration.h"
#include "macos/fake/Values.h"

using namespace fake;

namespace {

using Attempt = std::function<DAReturn(DiskEntry &)>;

struct Request {
  std::string disk;
  Answer answer;
  Attempt attempt;
  DADiskMountCallback callback;  // an unmount's is of the same type
  void *context;

  DAReturn carryOut() const {
    DiskEntry *const entry = entryOf(disk);
    return entry == nullptr ? kDAReturnNotFound : attempt(*entry);
  }

  void complete(DADiskRef about, DAReturn status) const {
    if (callback == nullptr) return;
    Object *const dissenter = status == 0 ? nullptr : make<Dissenter>("a callback", status);
    callback(about, as<DADissenterRef>(dissenter), context);
    if (dissenter != nullptr) release(*dissenter);
  }
};

void completeLater(Session *session, const Request &request, DAReturn status) {
  post({[session](const std::string &mode) { return session->isServedIn(mode); },
        [session, request, status] {
          auto *const disk = make<Disk>("a callback", session, request.disk);
          request.complete(as<DADiskRef>(disk), status);
          release(*disk);
        }});
}

void take(DADiskRef about, const Request &request) {
  const auto *const disk = about == nullptr ? nullptr : checked<Disk>(about, "A request");
  const auto when = request.answer.when;
  if (disk == nullptr || entryOf(request.disk) == nullptr) {
    request.complete(about, disk == nullptr ? kDAReturnBadArgument : kDAReturnNotFound);
  } else if (when == Answer::When::InsideTheCall) {
    request.complete(about, request.carryOut());
    checked<Disk>(about, "A request that called back");
  } else if (when != Answer::When::Never) {
    // What the service does, it does however the program's run loop runs.
    post({[](const std::string &) { return true; },
          [session = disk->session, when, request] {
            if (when == Answer::When::WhenTheDiskHasVanished) Machine::current().pull(request.disk);
            completeLater(session, request, request.carryOut());
          }});
  }
}

DAReturn tryToMount(DiskEntry &entry, const std::optional<std::string> &path) {
  if (entry.onMount.status != 0) return static_cast<DAReturn>(entry.onMount.status);
  if (!entry.description.contains("DAVolumeKind")) return kDAReturnUnsupported;
  if (entry.description.contains("DAVolumePath")) return kDAReturnBusy;
  putAt(entry, path.value_or(freeFolder(entry)));
  return kDAReturnSuccess;
}

DAReturn tryToUnmount(DiskEntry &entry, bool isForced) {
  if (!entry.description.contains("DAVolumePath")) return kDAReturnNotMounted;
  const auto refusal = static_cast<DAReturn>(entry.onUnmount.status);
  const bool isOverruled = isForced && refusal == kDAReturnBusy;
  if (refusal != kDAReturnSuccess && !isOverruled) return refusal;
  takeAway(entry);
  return kDAReturnSuccess;
}

std::string nameOf(DADiskRef disk) {
  const char *const name = DADiskGetBSDName(disk);
  return name == nullptr ? "" : name;
}

}  // namespace

void DADiskMountWithArguments(DADiskRef disk, CFURLRef path, DADiskMountOptions,
                              DADiskMountCallback callback, void *context, CFStringRef *) {
  const DiskEntry *const entry = entryOf(nameOf(disk));
  const auto *const url = path == nullptr ? nullptr : checked<Url>(path);
  const auto target = url == nullptr ? std::nullopt : std::optional(url->path());
  take(disk,
       {nameOf(disk), entry == nullptr ? Answer() : entry->onMount,
        [target](DiskEntry &present) { return tryToMount(present, target); }, callback, context});
}

void DADiskUnmount(DADiskRef disk, DADiskUnmountOptions options, DADiskUnmountCallback callback,
                   void *context) {
  const DiskEntry *const entry = entryOf(nameOf(disk));
  const bool isForced = (options & kDADiskUnmountOptionForce) != 0;
  take(disk, {nameOf(disk), entry == nullptr ? Answer() : entry->onUnmount,
              [isForced](DiskEntry &present) { return tryToUnmount(present, isForced); }, callback,
              context});
}
