#pragma once

// A Mac for tests: what stands behind the declarations in tests/macos/include on other systems. A
// test makes a machine, says what is there, and lets the backend ask:
//
//   fake::Machine mac;
//   mac.plug("disk0s1", {{"DAMediaName", "EFI System Partition"}, {"DAVolumeKind", "msdos"}});
//   mac.onMount["disk0s1"] = {fake::Answer::When::InsideTheCall, 0xF8DA0009};
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

/// When, and with which status, the disk service answers a request; 0 is success. Whatever keeps an
/// unmount from succeeding later is told as 0xC010, and does not hold against a forced one.
struct Answer {
  enum class When { Later, InsideTheCall, Never };
  When when = When::Later;
  quint32 status = 0;
};

struct Process {
  std::string volume;  // the mount point of the one that it uses
  std::string name;    // empty: this user may not know
};

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
  /// A mounted volume may get another path by it.
  void rename(const QString &name, const QString &volumeName, const QString &path = {});

  /// Empty while it is not mounted.
  QString mountPoint(const QString &name) const;

  /// To whoever observes the name, in either notification centre.
  void postNotification(const QString &name);
  /// The old service's sessions are dead, and the new one has said that it runs.
  void restartDiskService();
  /// In another program. Its handlers are called at once.
  void sendEvent(Event event);

  // Read whenever the backend asks.
  std::map<QString, Answer> onMount;  // how the service answers requests for a disk, by its name
  std::map<QString, Answer> onUnmount;
  QString volumesFolder = QStringLiteral("/Volumes");  // where the service mounts by itself
  bool hasDiskService = true;
  QVariantMap preferences;    // the program's own
  QStringList loginItems;     // locations; empty: does not resolve
  QVariantMap driverBundles;  // path by identifier
  QString mainBundle = QStringLiteral("/Applications/Keldra.app");
  std::string executable;
  std::map<std::string, quint32> fileSystemSubtypes;  // by mount point
  std::map<int, Process> processes;                   // by their numbers

  World &world() { return *_world; }

 private:
  std::unique_ptr<World> _world;
};

/// Delivers what is waiting and what that brings about, as the main run loop would.
void serve(Mode mode = Mode::Default);

}  // namespace fake
