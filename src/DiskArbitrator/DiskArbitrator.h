#pragma once

// Every question about disks and every change to them, as class-level operations.
//
//   for (const QString &esp : DiskArbitrator::findAllEFIdisk()) {
//     DiskArbitrator::mountPartition(esp, std::nullopt);
//   }
//
// No operation keeps state between calls: each asks the current platform anew. A reference is a BSD
// name, a device path or the path of a mounted volume. Failures are returned, not thrown: an absent
// text, false, or one of the sentinel texts that the operation names. Main thread only.
//
// On an old system (product version 10.8 or older) ESPs are found, mounted and unmounted by the
// system's command-line tools, which block until they exit.

#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "Platform/Platform.h"

class DiskArbitrator {
 public:
  DiskArbitrator() = delete;

  /// The media name of a partition that holds a boot loader. This name alone makes a partition an
  /// ESP.
  static const QString kEFISystemPartition;

  // From the disk's description. Absent where the service does not know the disk.

  static std::optional<QString> findPartitionName(const QString &reference);
  /// The volume's name; "N/A" where it has none or is not mounted. "EFI" for an ESP on an old
  /// system.
  static std::optional<QString> findMountPointName(const QString &reference);
  /// The partition scheme of the whole disk that holds the reference.
  static std::optional<QString> findPartitionSchemeMap(const QString &reference);
  static std::optional<QString> findDeviceProtocol(const QString &reference);
  /// "disk(null)" where the volume has none.
  static std::optional<QString> findVolumeUUID(const QString &reference);
  static std::optional<QString> findDiskUUID(const QString &reference);
  static std::optional<QString> findVolumeMediaContent(const QString &reference);
  /// The device node that the system's other tools use, such as "/dev/nvme0n1p1".
  static std::optional<QString> findDeviceNode(const QString &reference);

  // About the whole disk that holds the reference. False where nothing is known.

  static bool isGPT(const QString &reference);
  static bool isWritable(const QString &reference);
  static bool isEjectable(const QString &reference);
  static bool isInternal(const QString &reference);

  // BSD names.

  static std::optional<QString> findBSDName(const QString &reference);
  static std::optional<QString> findBSDNameOfCurrentVolume();
  /// The whole disk's name; "disk(null)" for what the service does not know.
  static QString findBSDdiskParent(const QString &reference);
  /// The slice number as text; "N/A" for what is not a partition.
  static QString findSliceNumberFromPartitionDisk(const QString &reference);

  // What exists.

  /// Whole disks and partitions by BSD name, in the registry's order. Empty when the registry
  /// cannot be asked.
  static QStringList getAlldisks();
  static QStringList findAllEFIdisk();
  /// The names of the mounted volumes; the volume mounted at "/" comes last.
  static QStringList getListOfMountedMedia();
  /// The ESP at slice 1 of the GPT disk that holds the reference; absent where there is none.
  static std::optional<QString> findEFIdiskOfTheParentDisk(const QString &reference);
  /// One line, "Disk: EFI, Data": the names of all partitions on the disk that holds the reference.
  static QString findAllPartitionNameParentSeparatedByComma(const QString &reference);

  // Where a partition is mounted.

  /// An absolute path; absent while the partition is not mounted. For an ESP on an old system, the
  /// answer of `findMountPointLegacy`.
  static std::optional<QString> findMountPoint(const QString &reference);
  /// As /bin/df reports it; "N/A" for what is not mounted.
  static QString findMountPointLegacy(const QString &reference);
  /// Whether `findMountPoint` gives a text that may be a path. "N/A" counts as one: on an old
  /// system an ESP always counts as mounted.
  static bool isMountPointValid(const QString &reference);
  /// Whether anything is at this absolute path: a mounted volume, even one that does not answer, or a file or
  /// folder that can be seen.
  static bool isThere(const std::optional<QString> &path);
  /// "name (process number)" of each process that uses the volume, as far as the system lets this
  /// user know. Empty while it is not mounted. Blocks in a nested run of the run loop.
  static QStringList findProcessesUsing(const QString &reference);
  /// As above, without blocking: `answer` is called once, inside this call or from the event loop.
  static void findProcessesUsing(const QString &reference,
                                 const std::function<void(const QStringList &)> &answer);

  // Mounting. Both block in a nested run of the run loop until the service has answered.

  /// `atPath`, if present and not empty, is the folder to mount on, which is made if need be. True
  /// when the partition is mounted afterwards. A refusal is announced; the call then returns after
  /// five seconds.
  static bool mountPartition(const QString &partition, const std::optional<QString> &atPath);
  /// Always true, which says only that the request was made. A refusal is announced.
  static bool umountPartition(const QString &partition, bool forceUmount);
  /// What `mountPartition` does with an ESP on an old system: mounts it as FAT on the folder at the
  /// path. Where anything exists already, it takes the first of "PATH 1", "PATH 2" ... that does not
  /// exist or is empty. No path stands for "EFI" in the folder for volumes. True when the mount
  /// program succeeded, or when the partition is mounted at the path already. Other failures are not
  /// announced.
  static bool mountPartitionModeLegacy(const QString &partition,
                                       const std::optional<QString> &atPath);
  /// Whether a folder may be mounted on: it can be read and holds hidden entries at most, but no
  /// file ".DS_Store".
  static bool chosenFolderIsEmpty(const QString &path);

  // Probes.

  /// The kind of the file system; for FAT "Fat12", "Fat16", "Fat32", or "Unknown" when its width
  /// cannot be determined. Mounts a FAT volume to find out, and leaves it mounted; "msdos" when
  /// that fails. "Fat32" for every ESP on an old system, "N/A" for what holds no file system.
  static std::optional<QString> findFileSystemPersonality(const QString &reference);
  /// "Physical 4096-bytes" of the whole disk that holds the reference, or "Logical 512-bytes" if
  /// the disk reports no physical size. "N/A" when the disk cannot be asked, "Not Priviliged" when
  /// the user is not root.
  static std::optional<QString> findSectorSize(const QString &reference);

  /// The picture for a partition: the volume's own icon while it is mounted, else the icon that its
  /// driver has for the medium, else the caution icon. Null when the volume has an icon file that
  /// can be read but not decoded, or when the caution icon cannot be loaded either.
  static QImage findVolumeIcon(const QString &partition);

  /// The second number of the system's product version, 15 for "10.15". 0 when it cannot be read.
  static qint32 findOSXMinorVersion();

  /// Posts the message under "note" in a notification named "arbitrator" on the default center,
  /// with `sender()` as its object. An empty message posts nothing.
  static void sendNotificationWithMessage(const QString &message);
  /// The sender of those notifications.
  static const void *sender();

 private:
  /// Whether the system's version is 10.8 or older.
  static bool isOldSystem();
  /// Whether the reference is an ESP on an old system.
  static bool needsLegacyMode(const QString &reference);
  static void umountPartitionModeLegacy(const QString &partition);
  /// Whether both references are known and name the same disk.
  static bool isSameDisk(const QString &reference, const QString &other);
  // Called when the service has answered; the disk is its BSD name.
  static void mountCallback(const QString &disk, const std::optional<Dissenter> &dissenter);
  static void umountCallback(const QString &disk, const std::optional<Dissenter> &dissenter);
};

/// The name of the notification that announces a refusal, and the key of its text.
inline const QString kArbitratorNotification = QStringLiteral("arbitrator");
inline const QString kNoteKey = QStringLiteral("note");

/// The notification that precedes a refused unmount's "arbitrator" when the volume is in use, and
/// the key of the partition's BSD name.
inline const QString kVolumeInUseNotification = QStringLiteral("volumeInUse");
inline const QString kPartitionKey = QStringLiteral("partition");
