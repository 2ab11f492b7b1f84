#pragma once

// The whole disks that the kernel knows, whether the disk service has announced them yet or not.

#include <QList>
#include <QString>

struct WholeDisk {
  QString kernelName;  // "sda"
  quint64 device = 0;  // its device number
};

class BlockDevices {
 public:
  /// `folder` has one folder for each disk, as /sys/block does.
  explicit BlockDevices(QString folder) : _folder(std::move(folder)) {}

  /// The disks that hold something: no loop device without a file, no drive without a medium, no
  /// memory device.
  QList<WholeDisk> all() const;

  /// A text that is unique to this disk until the machine restarts: a loop device with another
  /// file, or a card reader with another card, is another disk. For a disk that the kernel does not
  /// know, and on old kernels, the text is the device number.
  QString identityOf(const WholeDisk &disk) const;

 private:
  QString attribute(const QString &kernelName, const QString &attribute) const;

  QString _folder;
};

/// A block device in memory.
bool isMemoryDevice(const QString &kernelName);

/// Drives come before other hardware, then mapped, RAID and network devices, then loop devices, so
/// that the loop device of a software package never precedes the machine's own drive. Last come CD
/// and floppy drives, which have a size in the kernel even while empty. Of one kind, "sda" comes
/// before "sdb" before "sdaa", "loop2" before "loop10".
bool comesBefore(const WholeDisk &one, const WholeDisk &other);
