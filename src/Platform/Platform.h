#pragma once

// The seam between the program and the machine it runs on. Everything above it speaks one language:
// BSD names ("disk0s1"), disk descriptions, dissenter statuses, workspace notifications. A backend
// (a folder beside this header, each with one factory) translates its own world into that language
// and keeps that world's oddities to itself.
//
// All of it lives on the main thread. Nothing here blocks unless its comment says so, and nothing
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
  /// Called with the dissenter when the service refused, without one when it did as it was asked.
  using Completion = std::function<void(const std::optional<Dissenter> &)>;

  virtual ~DiskService() = default;

  virtual Presence presence() const = 0;

  /// What it is, for a report of a fault: "UDisks2 2.9.4". Without a number while it is not known.
  virtual QString name() const = 0;

  /// What is known of a whole disk or partition, true at the moment of the question, also as to
  /// whether and where it is mounted. Absent for a name that the service does not know.
  virtual std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const = 0;

  /// What is known of the volume mounted at exactly this absolute path. Absent where none is.
  virtual std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const = 0;

  /// Asks for a mount at `path`, or, if that is absent, where the service likes. The completion is
  /// called exactly once, on this thread, inside this call or later from the run loop; also when
  /// the service is absent or dies, or the disk vanishes. There is no time-out: a person may be
  /// typing a password.
  virtual void mount(const QString &bsdName, const std::optional<QString> &path,
                     Completion completion) = 0;

  /// Asks for an unmount; the completion as for `mount`. A forced one succeeds though files are
  /// open. What was written before it is on the disk when it completes; where the disk takes too long
  /// for that, kVolumeUnwrittenNotification is posted before.
  virtual void unmount(const QString &bsdName, UnmountOption option, Completion completion) = 0;
};

/// The list of all media that have a BSD name.
class MediaRegistry {
 public:
  virtual ~MediaRegistry() = default;

  /// Whole disks and partitions side by side, each once, in an order that stays the same while they
  /// stay. Empty when the registry cannot be asked.
  virtual QStringList mediaNames() const = 0;

  /// Those of `mediaNames` that lie on the whole disk of this name, itself among them, in the same
  /// order.
  virtual QStringList mediaNamesOnDisk(const QString &wholeDisk) const = 0;
};

/// The main thread's event loop, for waits in the middle of an action.
class RunLoop {
 public:
  virtual ~RunLoop() = default;

  /// Serves timers, painting and the disk service until `finished` is true; returns at once if it
  /// is so already. Blocks. Whoever sets the flag calls `stop` after it.
  virtual void run(const bool &finished) = 0;

  /// Makes the innermost `run` look at its flag; does nothing while there is none. A `run` further
  /// out, and one with an event loop of somebody else inside, looks as soon as that is over.
  virtual void stop() = 0;

  /// Serves what is waiting to be served and what comes within the next 20 ms. Blocks that long, so
  /// that whoever asks something again and again does so fifty times a second at most.
  virtual void servePending() = 0;
};

/// Files that belong to the operating system, named by the absolute paths that they have on the
/// system where they come from ("/System/Library/..."). A backend may keep them below a folder of
/// its own.
class SystemFiles {
 public:
  virtual ~SystemFiles() = default;

  virtual bool exists(const QString &path) const = 0;

  /// The dictionary in a property list, XML or binary. Empty when there is no such file or it holds
  /// none.
  virtual QVariantMap propertyList(const QString &path) const = 0;

  /// The largest picture in an icon file, null when what the file holds does not decode. Absent when
  /// there is nothing to read: no such file, one that this user may not read, no plain file, or
  /// one far larger than any icon. Decoding blocks for some milliseconds.
  virtual std::optional<QImage> image(const QString &path) const = 0;

  /// The path of a resource of this name and type (which is how its file's name ends) in a bundle;
  /// empty when the bundle has none. Absent when there is no bundle at that path.
  virtual std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                                const QString &type) const = 0;

  /// Where the driver bundle with this identifier is. Absent when there is none.
  virtual std::optional<QString> driverBundle(const QString &identifier) const = 0;
};

/// Where things of this user are, as absolute paths. They need not be there.
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

  /// Where mounts, unmounts and renames of volumes are posted, under the names below, whoever
  /// caused them. Posted from the run loop, never from inside a question.
  virtual NotificationCenter &workspaceNotificationCenter() = 0;

  /// The machine that `DiskArbitrator` asks. There must be one; see `CurrentPlatform`.
  static Platform &current();
};

/// Makes a platform the current one for the life of this object. Objects of this class are nested.
class CurrentPlatform {
 public:
  explicit CurrentPlatform(Platform &platform);
  ~CurrentPlatform();
  CurrentPlatform(const CurrentPlatform &) = delete;
  CurrentPlatform &operator=(const CurrentPlatform &) = delete;

 private:
  Platform *_previous;
};

// The workspace's notifications. Each carries the volume's mount path under kNSDevicePathKey; one
// without it says only that what is known of the disks has changed (a disk plugged or pulled, the
// service's arrival).
inline const QString kNSWorkspaceDidMountNotification =
    QStringLiteral("NSWorkspaceDidMountNotification");
inline const QString kNSWorkspaceDidUnmountNotification =
    QStringLiteral("NSWorkspaceDidUnmountNotification");
inline const QString kNSWorkspaceDidRenameVolumeNotification =
    QStringLiteral("NSWorkspaceDidRenameVolumeNotification");
/// Our own: a forced unmount did not wait until everything was written.
inline const QString kVolumeUnwrittenNotification = QStringLiteral("KeldraVolumeUnwritten");
inline const QString kNSDevicePathKey = QStringLiteral("NSDevicePath");
