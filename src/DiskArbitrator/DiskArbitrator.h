#pragma once

// Everything that is asked of disks or done to them, as class-level operations.
//
//   for (const QString &esp : DiskArbitrator::findAllEFIdisk()) {
//     DiskArbitrator::mountPartition(esp, std::nullopt);
//   }
//
// No operation keeps anything between calls: each asks the current platform afresh. A reference is
// a BSD name, a device path or the path of a mounted volume. Failures are answers: an absent text,
// false, or one of the sentinel texts that the operation names. Main thread only.
//
// On an old system (product version 10.8 or older) ESPs are found, mounted and unmounted by the
// system's command-line tools, which block until they have ended.

#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "Platform/Platform.h"

class DiskArbitrator {
 public:
  DiskArbitrator() = delete;

  /// What a partition is called that holds a boot loader: its media name, and nothing else, makes
  /// it an ESP.
  static const QString kEFISystemPartition;

  // What the description of a disk says. Absent where the service does not know it.

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
  /// The node by which the system's other tools know it, such as "/dev/nvme0n1p1".
  static std::optional<QString> findDeviceNode(const QString &reference);

  // These answer for the whole disk that holds the reference. False where nothing is known.

  static bool isGPT(const QString &reference);
  static bool isWritable(const QString &reference);
  static bool isEjectable(const QString &reference);
  static bool isInternal(const QString &reference);

  // BSD names.

  static std::optional<QString> findBSDName(const QString &reference);
  static std::optional<QString> findBSDNameOfCurrentVolume();
  /// The whole disk's name; "disk(null)" for what the service does not know.
  static QString findBSDdiskParent(const QString &reference);
  /// The slice number as text; "N/A" for what is no partition.
  static QString findSliceNumberFromPartitionDisk(const QString &reference);

  // What there is.

  /// Whole disks and partitions by BSD name, in the registry's order. Empty when it cannot be
  /// asked.
  static QStringList getAlldisks();
  static QStringList findAllEFIdisk();
  /// The names of the mounted volumes, that of the volume mounted at "/" last.
  static QStringList getListOfMountedMedia();
  /// The ESP at slice 1 of the GPT disk that holds the reference; absent where there is none.
  static std::optional<QString> findEFIdiskOfTheParentDisk(const QString &reference);
  /// One line, "Disk: EFI, Data": the names of everything on the disk that holds the reference.
  static QString findAllPartitionNameParentSeparatedByComma(const QString &reference);

  // Where a partition is mounted.

  /// An absolute path; absent while it is not mounted. On an old system, what
  /// `findMountPointLegacy` says of an ESP.
  static std::optional<QString> findMountPoint(const QString &reference);
  /// As /bin/df reports it; "N/A" for what is not mounted.
  static QString findMountPointLegacy(const QString &reference);
  /// Whether `findMountPoint` gives a text that may be a path. "N/A" counts as one: an ESP of an
  /// old system is taken for mounted always.
  static bool isMountPointValid(const QString &reference);
  /// Whether anything is at this absolute path: a volume, though it may not answer, or what can be seen there.
  static bool isThere(const std::optional<QString> &path);
  /// "name (process number)" of each process that uses the volume, as far as the system lets this
  /// user know. Empty while it is not mounted. Blocks in a nested run of the run loop.
  static QStringList findProcessesUsing(const QString &reference);
  /// As above, without blocking: `answer` is called once, inside this call or from the event loop.
  static void findProcessesUsing(const QString &reference,
                                 const std::function<void(const QStringList &)> &answer);

  // Mounting. Both block in a nested run of the run loop until the service has answered.

  /// `atPath`, if it is there and not empty, is the folder to mount on; it is made if need be. True
  /// when the partition is mounted afterwards. A refusal is announced; after one, the answer takes
  /// five seconds.
  static bool mountPartition(const QString &partition, const std::optional<QString> &atPath);
  /// True in every case: the request was carried out. A refusal is announced.
  static bool umountPartition(const QString &partition, bool forceUmount);
  /// What `mountPartition` does with an ESP on an old system: has it mounted as FAT on the folder at
  /// the path or, where anything is there already, on the first of "PATH 1", "PATH 2" ... that is
  /// not there or empty. No path stands for "EFI" in the folder for volumes. True when the mount
  /// program succeeded, or when the partition is mounted at the path already; other failures are
  /// not announced.
  static bool mountPartitionModeLegacy(const QString &partition,
                                       const std::optional<QString> &atPath);
  /// Whether a folder may be mounted on: it can be read, and holds nothing but hidden entries, and
  /// no file ".DS_Store" among these.
  static bool chosenFolderIsEmpty(const QString &path);

  // Probes.

  /// The kind of the file system; for FAT "Fat12", "Fat16", "Fat32", or "Unknown" where its width
  /// cannot be told. Mounts a FAT volume to find out, and leaves it mounted; "msdos" when that
  /// fails. "Fat32" for every ESP on an old system, "N/A" for what holds none.
  static std::optional<QString> findFileSystemPersonality(const QString &reference);
  /// "Physical 4096-bytes" of the whole disk that holds the reference, or "Logical 512-bytes" if it
  /// tells no more. "N/A" when it cannot be asked, "Not Priviliged" when this is not root.
  static std::optional<QString> findSectorSize(const QString &reference);

  /// The picture for a partition: the volume's own icon while it is mounted, else its driver's for
  /// the medium, else the caution icon. Null when the volume has an icon file that can be read but
  /// does not decode, or when even the caution icon cannot be loaded.
  static QImage findVolumeIcon(const QString &partition);

  /// The second number of the system's product version, 15 for "10.15". 0 when it cannot be read.
  static qint32 findOSXMinorVersion();

  /// Posts the message under "note" in a notification named "arbitrator" on the default center,
  /// with `sender()` as its object. An empty message posts nothing.
  static void sendNotificationWithMessage(const QString &message);
  /// Who posts those notifications.
  static const void *sender();

 private:
  /// Whether the system's version is 10.8 or older.
  static bool isOldSystem();
  /// Whether the reference is an ESP on an old system.
  static bool needsLegacyMode(const QString &reference);
  static void umountPartitionModeLegacy(const QString &partition);
  /// Whether both references are known and name the same disk.
  static bool isSameDisk(const QString &reference, const QString &other);
  // What the service calls when it has answered; the disk is its BSD name.
  static void mountCallback(const QString &disk, const std::optional<Dissenter> &dissenter);
  static void umountCallback(const QString &disk, const std::optional<Dissenter> &dissenter);
};

/// The name of the notification that announces a refusal, and the key of its text.
inline const QString kArbitratorNotification = QStringLiteral("arbitrator");
inline const QString kNoteKey = QStringLiteral("note");

/// The notification right before that one when an unmount is refused because the volume is in use,
/// and the key of the partition's BSD name.
inline const QString kVolumeInUseNotification = QStringLiteral("volumeInUse");
inline const QString kPartitionKey = QStringLiteral("partition");
