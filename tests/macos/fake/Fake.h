#pragma once

// A fake Mac for tests: the code behind the declarations in tests/macos/include on other systems. A
// test makes a machine, sets its state, and lets the backend use it:
//
//   fake::Machine mac;
//   mac.plug("disk0s1", {{"DAMediaName", "EFI System Partition"}, {"DAVolumeKind", "msdos"}});
//   mac.refusals["disk0s1"] = 0xF8DA0009;
//   ... the backend mounts ...
//   fake::serve();
//
// Errors that would crash, hang, leak or stay unnoticed on a Mac fail the test with a message: a
// reference never released, released too often or used after its end; a reference of another type, or
// NULL where none is allowed; a run of the run loop that never ends, a stop without a run; a request on
// a thread where its password prompt would block the program; and anything still registered when the
// machine is destroyed.
//
// Callbacks wait until the run loop runs in a mode in which their receiver is scheduled: in
// `serve`, in CFRunLoopRun and similar functions, and in Qt's event loop, which is the main run
// loop of a Qt program. This header includes no header of the platform, because tests may have the
// same names.

#include <QVariantMap>
#include <map>
#include <memory>
#include <vector>

namespace fake {

struct World;

enum class Event { LeftMouseDown = 1, RightMouseDown = 3, KeyDown = 10, KeyUp = 11 };

/// The modes of Qt's event loop. The second is that of an application-modal window, which serves
/// only callbacks that are scheduled in the common modes.
enum class Mode { Default, ModalPanel };

/// One Mac; at most one exists at a time. Its values of disks and settings are texts, numbers,
/// booleans, QUrls, QUuids and maps of these.
class Machine {
 public:
  Machine();
  ~Machine();
  static Machine &current();

  /// Adds a disk or a partition; its BSD name is added to the description, which has the service's
  /// own keys ("DAMediaName"). Mounted from the start if there is a "DAVolumePath". With a path
  /// instead of a name: a volume without a disk, such as one from a server, mounted at that path.
  void plug(const QString &name, QVariantMap description = {});
  /// Removes the disk or partition without an unmount.
  void pull(const QString &name);

  // Actions of another program.
  void mount(const QString &name, const QString &path);
  void unmount(const QString &name);
  /// Also changes the path of a mounted volume.
  void rename(const QString &name, const QString &volumeName);

  /// Empty while it is not mounted.
  QString mountPoint(const QString &name) const;

  /// To all observers of the name, in both notification centres.
  void postNotification(const QString &name);
  /// An event in another program. The handlers are called at once.
  void sendEvent(Event event);

  // State that the backend reads.
  QMap<QString, quint32> refusals;  // the service's status for every request for the disk
  QStringList busyVolumes;          // by disk: only forced unmounts succeed
  bool hasDiskService = true;
  QVariantMap preferences;    // the program's own
  QStringList loginItems;     // locations; an empty one does not resolve
  QVariantMap driverBundles;  // path by identifier
  std::string executable;
  std::map<std::string, quint32> fileSystemSubtypes;  // by mount point
  // By process number: the mount point that the process uses, and its name, empty if not visible.
  std::map<int, std::pair<std::string, std::string>> processes;

  World &world() { return *_world; }

 private:
  std::unique_ptr<World> _world;
};

/// Makes all pending calls and those that result from them, as the main run loop would.
void serve(Mode mode = Mode::Default);

}  // namespace fake
