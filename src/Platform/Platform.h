#pragma once

// The seam between the program and the machine it runs on. All code above it uses the same terms:
// BSD names ("disk0s1"), disk descriptions, dissenter statuses, workspace notifications. A backend
// (a folder beside this header, each with one factory) translates its own system into these terms
// and hides that system's peculiarities.
//
// Everything runs on the main thread. Nothing here blocks unless its comment says so, and nothing
// throws.

#include <QImage>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <optional>

#include "Foundation/Clock.h"
#include "Platform/DiskDescription.h"
#include "Platform/Dissenter.h"
#include "Platform/LoginItems.h"
#include "Platform/RawDevices.h"
#include "Platform/SystemPrograms.h"
#include "Platform/VolumeFiles.h"

class NotificationCenter;

/// The service that describes, mounts and unmounts disks.
class DiskService {
 public:
  enum class Presence {
    Asking,     // nothing is known yet: the service was asked and has not answered
    Answering,  // what the service says is known and followed
    Absent,     // no service answers
  };
  enum class UnmountOption { Default, Force };
  /// Called with the dissenter when the service refused, without one on success.
  using Completion = std::function<void(const std::optional<Dissenter> &)>;

  virtual ~DiskService() = default;

  virtual Presence presence() const = 0;

  /// The service's name and version, for a bug report: "UDisks2 2.9.4". Without a number while the
  /// version is not known.
  virtual QString name() const = 0;

  /// What is known of a whole disk or partition at the time of the call, including whether and
  /// where it is mounted. Absent for a name that the service does not know.
  virtual std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const = 0;

  /// What is known of the volume mounted at exactly this absolute path. Absent if there is none.
  virtual std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const = 0;

  /// Asks for a mount at `path`, or, if that is absent, at a place that the service chooses. The
  /// completion is called exactly once, on this thread, inside this call or later from the run
  /// loop; also when the service is absent or exits, or the disk vanishes. There is no timeout,
  /// because the user may be typing a password.
  virtual void mount(const QString &bsdName, const std::optional<QString> &path,
                     Completion completion) = 0;

  /// Asks for an unmount; the completion is called as for `mount`. A forced unmount succeeds even if
  /// files are open. When it completes, earlier writes are on the disk; if the disk takes too long
  /// for that, kVolumeUnwrittenNotification is posted first.
  virtual void unmount(const QString &bsdName, UnmountOption option, Completion completion) = 0;
};

/// The list of all media that have a BSD name.
class MediaRegistry {
 public:
  virtual ~MediaRegistry() = default;

  /// Whole disks and partitions in one list, each once; the order stays the same while the media
  /// stay. Empty when the registry cannot be asked.
  virtual QStringList mediaNames() const = 0;

  /// The entries of `mediaNames` on the whole disk of this name, the disk itself included, in the
  /// same order.
  virtual QStringList mediaNamesOnDisk(const QString &wholeDisk) const = 0;
};

/// The main thread's event loop, for waits inside an action.
class RunLoop {
 public:
  virtual ~RunLoop() = default;

  /// Serves timers, painting and the disk service until `finished` is true; returns at once if it
  /// is true already. Blocks. The code that sets the flag calls `stop` afterwards.
  virtual void run(const bool &finished) = 0;

  /// Makes the innermost `run` check its flag; does nothing if there is none. A `run` further out,
  /// or one with a foreign event loop inside, checks when the inner loop has returned.
  virtual void stop() = 0;

  /// Serves pending events and those of the next 20 ms. Blocks that long, so that a polling caller
  /// polls fifty times a second at most.
  virtual void servePending() = 0;
};

/// Files that belong to the operating system, named by their absolute paths on the original system
/// ("/System/Library/..."). A backend may keep them below a folder of its own.
class SystemFiles {
 public:
  virtual ~SystemFiles() = default;

  virtual bool exists(const QString &path) const = 0;

  /// The dictionary in a property list, XML or binary. Empty when there is no such file or no
  /// dictionary in the file.
  virtual QVariantMap propertyList(const QString &path) const = 0;

  /// The largest picture in an icon file; null when the content does not decode. Absent when there
  /// is nothing to read: no such file, one that this user may not read, not a plain file, or one far
  /// larger than any icon. Decoding blocks for some milliseconds.
  virtual std::optional<QImage> image(const QString &path) const = 0;

  /// The path of a resource of this name and type (its file's extension) in a bundle; empty when
  /// the bundle has none. Absent when there is no bundle at that path.
  virtual std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                                const QString &type) const = 0;

  /// Where the driver bundle with this identifier is. Absent when there is none.
  virtual std::optional<QString> driverBundle(const QString &identifier) const = 0;
};

/// The user's folders, as absolute paths. They need not exist.
struct Folders {
  QString volumes;        // the system mounts volumes below it: "/Volumes", "/media/alex"
  QString legacyVolumes;  // ESPs are mounted below it on an old system
  QString support;        // programs keep data below it, each below a name of its own
};

/// One machine. Owns its roles, which live as long as it does.
class Platform {
 public:
  Platform() = default;
  Platform(const Platform &) = delete;
  Platform &operator=(const Platform &) = delete;
  virtual ~Platform() = default;

  virtual DiskService &diskService() = 0;
  virtual MediaRegistry &mediaRegistry() = 0;
  virtual RawDevices &rawDevices() = 0;
  virtual VolumeFiles &volumeFiles() = 0;
  virtual RunLoop &runLoop() = 0;
  virtual Clock &clock() = 0;
  virtual SystemFiles &systemFiles() = 0;
  virtual SystemPrograms &systemPrograms() = 0;
  virtual LoginItems &loginItems() = 0;
  virtual UserDefaults &userDefaults() = 0;

  virtual Folders folders() const = 0;

  /// Posts mounts, unmounts and renames of volumes under the names below, whatever their cause.
  /// Posts from the run loop, never from inside a call to this interface.
  virtual NotificationCenter &workspaceNotificationCenter() = 0;

  /// The machine that `DiskArbitrator` asks. A `CurrentPlatform` must exist.
  static Platform &current();
};

/// Makes a platform the current one while this object exists. Objects of this class are nested.
class CurrentPlatform {
 public:
  explicit CurrentPlatform(Platform &platform);
  ~CurrentPlatform();
  CurrentPlatform(const CurrentPlatform &) = delete;
  CurrentPlatform &operator=(const CurrentPlatform &) = delete;

 private:
  Platform *_previous;
};

// The workspace's notifications. Each has the volume's mount path under kNSDevicePathKey. One
// without a path says only that something known of the disks has changed (a disk plugged or pulled,
// the service started).
inline const QString kNSWorkspaceDidMountNotification =
    QStringLiteral("NSWorkspaceDidMountNotification");
inline const QString kNSWorkspaceDidUnmountNotification =
    QStringLiteral("NSWorkspaceDidUnmountNotification");
inline const QString kNSWorkspaceDidRenameVolumeNotification =
    QStringLiteral("NSWorkspaceDidRenameVolumeNotification");
/// The program's own: a forced unmount did not wait until everything was written.
inline const QString kVolumeUnwrittenNotification = QStringLiteral("KeldraVolumeUnwritten");
inline const QString kNSDevicePathKey = QStringLiteral("NSDevicePath");
