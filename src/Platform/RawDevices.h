#pragma once

// What only the mounted file system or the device itself reports, not the disk service: a role of
// the seam (see Platform.h).

#include <QString>
#include <optional>

class RawDevices {
 public:
  virtual ~RawDevices() = default;

  /// Whether devices may be opened: the real user of this process is root.
  virtual bool isPrivileged() const = 0;

  /// The variant of the file system that is mounted at this path: 0, 1 and 2 are FAT12, FAT16 and
  /// FAT32. Absent when it cannot be determined.
  virtual std::optional<quint32> fileSystemSubtype(const QString &mountPoint) const = 0;

  // In bytes, of the disk of this BSD name. Absent when the device cannot be opened or does not
  // report the size. Each call opens the device and may block until the device has woken up.

  virtual std::optional<quint32> physicalBlockSize(const QString &bsdName) const = 0;
  virtual std::optional<quint32> logicalBlockSize(const QString &bsdName) const = 0;
};
