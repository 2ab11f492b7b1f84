#pragma once

// The disk service's objects, and how its sessions hear of things.

#include <DiskArbitration/DiskArbitration.h>

#include "macos/fake/World.h"

namespace fake {

struct Registration {
  enum class Kind { Appeared, Disappeared, Changed };
  Kind kind;
  std::optional<std::set<std::string>> watched;  // absent: all keys
  void *callback;
  void *context;
};

struct Session : Object {
  static constexpr char kType[] = "DASession";
  Session();
  void end() override;
  bool isServedIn(const std::string &mode) const;

  std::set<std::string> modes;
  std::vector<std::shared_ptr<Registration>> registrations;
};

struct Disk : Object {
  static constexpr char kType[] = "DADisk";
  Disk(Session *owner, std::string bsdName);
  std::string text() const override { return name; }
  void end() override;

  Session *session;
  std::string name;  // or the path of a volume without media
  bool hasMedia = true;
  std::optional<Dictionary> snapshot;  // what a callback's disk said of itself; else asked anew
};

struct Dissenter : Object {
  static constexpr char kType[] = "DADissenter";
  explicit Dissenter(DAReturn why) : Object(kType), status(why) {}
  DAReturn status;
};

/// Null for a disk that is not there.
DiskEntry *entryOf(const std::string &name);

/// Mounts a disk, or unmounts one that is mounted, and says so.
void putAt(DiskEntry &entry, const std::string &path);
void takeAway(DiskEntry &entry);

/// Where the service mounts a volume by itself.
std::string freeFolder(const DiskEntry &entry);

/// Queues the callbacks of this kind for a disk; `changed` are the keys, for a change.
void announce(Registration::Kind kind, const DiskEntry &entry,
              const std::set<std::string> &changed = {});

}  // namespace fake
