#pragma once

// A Mac for tests: what stands behind the declarations in tests/macos/include on other systems. A
// test makes a machine, says what is there, and lets the backend ask:
//
//   fake::Machine mac;
//   mac.plug("disk0s1", {{"DAMediaName", "EFI System Partition"}, {"DAVolumeKind", "msdos"}});
//   mac.refusals["disk0s1"] = 0xF8DA0009;
//   ... the backend mounts ...
//   fake::serve();
//
// Whatever would crash, hang, leak or go wrong unseen on a Mac fails the test in words: a reference
// never released, released once too often or used when it is gone; one of another type, or NULL where
// none may be; a run of the run loop that nothing ends, a stop that no run was there for, a request made
// where its password prompt would stop the program, and what is still registered when the machine
// goes.
//
// What is to be delivered waits until the run loop runs in a mode that its receiver is scheduled
// for: by `serve`, by CFRunLoopRun and its like, and by Qt's event loop, which is the main run loop
// of a Qt program. No header of the platform is included here: tests may have like names of their
// own.

#include <QVariantMap>
#include <map>
#include <memory>
#include <vector>

namespace fake {

struct World;

enum class Event { LeftMouseDown = 1, RightMouseDown = 3, KeyDown = 10, KeyUp = 11 };

/// The modes of Qt's event loop: the second is that of an application-modal window, which serves
/// only what is scheduled for the common modes.
enum class Mode { Default, ModalPanel };

/// One Mac; there is one at a time. What it knows of disks and keeps for a user are texts, numbers,
/// booleans, QUrls, QUuids and maps of these.
class Machine {
 public:
  Machine();
  ~Machine();
  static Machine &current();

  /// Adds a disk or a partition; its BSD name is added to the description, which is under the
  /// service's own keys ("DAMediaName"). Mounted from the start if there is a "DAVolumePath". By a
  /// path instead of a name: a volume that is on no disk, such as one from a server, mounted there.
  void plug(const QString &name, QVariantMap description = {});
  /// Without an unmount before it.
  void pull(const QString &name);

  // What somebody else does.
  void mount(const QString &name, const QString &path);
  void unmount(const QString &name);
  /// A mounted volume gets another path by it.
  void rename(const QString &name, const QString &volumeName);

  /// Empty while it is not mounted.
  QString mountPoint(const QString &name) const;

  /// To whoever observes the name, in either notification centre.
  void postNotification(const QString &name);
  /// In another program. Its handlers are called at once.
  void sendEvent(Event event);

  // Read whenever the backend asks.
  QMap<QString, quint32> refusals;  // the service's status, inside every request for the disk
  QStringList busyVolumes;          // by their disks: not unmounted but by force
  bool hasDiskService = true;
  QVariantMap preferences;    // the program's own
  QStringList loginItems;     // locations; empty: does not resolve
  QVariantMap driverBundles;  // path by identifier
  std::string executable;
  std::map<std::string, quint32> fileSystemSubtypes;  // by mount point
  // By number: the mount point of what it uses, and its name, empty when this user may not know.
  std::map<int, std::pair<std::string, std::string>> processes;

  World &world() { return *_world; }

 private:
  std::unique_ptr<World> _world;
};

/// Delivers what is waiting and what that brings about, as the main run loop would.
void serve(Mode mode = Mode::Default);

}  // namespace fake
