#pragma once

// A Mac for tests: what stands behind the declarations in tests/macos/include on other systems. A
// test makes a machine, says what is there, and lets the backend ask:
//
//   fake::Machine mac;
//   mac.plug("disk0s1", {{"DAMediaName", "EFI System Partition"}, {"DAVolumeKind", "msdos"}});
//   mac.onMount("disk0s1") = fake::refusedInside(0xF8DA0009);
//   ... the backend mounts ...
//   fake::serve();
//
// Whatever would crash, hang, leak or go wrong unseen on a Mac fails the test in words: a reference
// never released, released once too often or used when it is gone; one of another type, or NULL where
// none may be; a run of the run loop that nothing ends, a stop that no run was there for, and what is
// still registered when the machine goes.
//
// What is to be delivered waits until the run loop runs in a mode that its receiver is scheduled
// for: by `serve`, by CFRunLoopRun and its like, and by Qt's event loop, which is the main run loop
// of a Qt program. No header of the platform is included here: tests may have like names of their
// own.

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace fake {

struct World;

struct Path {
  std::string text;
  std::string base = {};  // what it is relative to, with the last "/"; empty for a whole path
};

struct Uuid {
  std::string text;
};

/// What a property list or a disk description can hold.
struct Value;
using Dictionary = std::map<std::string, Value>;
using AnyValue = std::variant<std::string, bool, std::int64_t, Path, Uuid, Dictionary>;
struct Value : AnyValue {
  using AnyValue::AnyValue;
};

/// When, and with which status, the disk service answers a request; 0 is success. A refusal that is
/// "busy" does not hold against a forced unmount.
struct Answer {
  enum class When { Later, InsideTheCall, WhenTheDiskHasVanished, Never };
  When when = When::Later;
  std::uint32_t status = 0;
};
inline Answer refused(std::uint32_t status) {
  return {Answer::When::Later, status};
}
inline Answer refusedInside(std::uint32_t status) {
  return {Answer::When::InsideTheCall, status};
}

/// How a disk shows in the registry of media; the disk service knows it in any case.
enum class Listing { Named, Nameless, Unreadable, Absent };

struct Process {
  int number;
  std::string name;  // empty: this user may not know
};

enum class Event { LeftMouseDown = 1, RightMouseDown = 3, KeyDown = 10, KeyUp = 11 };

/// The modes of Qt's event loop: the second is that of an application-modal window, which serves
/// only what is scheduled for the common modes.
enum class Mode { Default, ModalPanel };

/// One Mac; there is one at a time.
class Machine {
 public:
  Machine();
  ~Machine();
  static Machine &current();

  /// Adds a disk or a partition; its BSD name is added to the description, which is under the
  /// service's own keys ("DAMediaName"). Mounted from the start if there is a "DAVolumePath".
  void plug(const std::string &name, Dictionary description, Listing listing = Listing::Named);
  /// A volume that is on no disk, such as one from a server, mounted there.
  void plugVolumeWithoutMedia(const std::string &path);
  /// Without an unmount before it.
  void pull(const std::string &name);

  // What somebody else does.
  void mount(const std::string &name, const std::string &path);
  void unmount(const std::string &name);
  /// A mounted volume may get another path by it.
  void rename(const std::string &name, const std::string &volumeName,
              const std::optional<std::string> &path = std::nullopt);

  /// How the service answers requests for the disk from now on.
  Answer &onMount(const std::string &name);
  Answer &onUnmount(const std::string &name);
  std::optional<std::string> mountPoint(const std::string &name) const;

  void postDistributedNotification(const std::string &name);
  /// In another program. Its handlers are called at once.
  void sendEvent(Event event);

  // Read whenever the backend asks.
  std::string volumesFolder = "/Volumes";  // where the service mounts by itself
  bool hasDiskService = true;
  bool hasMediaRegistry = true;
  Dictionary globalPreferences;
  Dictionary preferences;  // the program's own; written when it synchronizes
  bool hasLoginItemList = true;
  bool takesLoginItems = true;
  std::vector<std::optional<std::string>> loginItems;  // locations; absent: does not resolve
  std::map<std::string, std::string> driverBundles;    // path by identifier
  std::string mainBundle = "/Applications/Keldra.app";
  bool allowsEventMonitors = true;
  std::map<std::string, std::uint32_t> fileSystemSubtypes;  // by mount point
  std::map<std::string, std::vector<Process>> processes;    // by the mount point that they use
  /// What of a longer run of the run loop is waited for until it counts as endless.
  std::chrono::milliseconds patience{5000};

  World &world() { return *_world; }

 private:
  std::unique_ptr<World> _world;
};

/// Delivers what is waiting and what that brings about, as the main run loop would.
void serve(Mode mode = Mode::Default);

}  // namespace fake
