#pragma once

// The whole disks that the kernel knows, whether the disk service has told of them yet or not.

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
  /// memory.
  QList<WholeDisk> all() const;

  /// A text that belongs to this disk alone until the machine is started anew: a loop device with
  /// another file, or a card reader with another card, is another disk. For a disk that the kernel
  /// does not know, and for old kernels, its device number must do.
  QString identityOf(const WholeDisk &disk) const;

 private:
  QString attribute(const QString &kernelName, const QString &attribute) const;

  QString _folder;
};

/// Memory that looks like a disk.
bool isMemoryDevice(const QString &kernelName);

/// Drives before other hardware, then mapped, RAID and network devices, then loop devices, so that
/// the file of some package never takes the first place from the machine's own drive. Last come CD
/// and floppy drives, which the kernel gives a size also while they are empty. Of one kind, "sda"
/// before "sdb" before "sdaa", "loop2" before "loop10".
bool comesBefore(const WholeDisk &one, const WholeDisk &other);
