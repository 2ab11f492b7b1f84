#pragma once

// What neither the disk service nor its descriptions tell, but the mounted file system or the
// device itself: a role of the seam (see Platform.h).

#include <QString>
#include <optional>

class RawDevices {
 public:
  virtual ~RawDevices() = default;

  /// Whether devices may be opened: the real user of this process is root.
  virtual bool isPrivileged() const = 0;

  /// Which one of its kind the file system is that is mounted at this path: 0, 1 and 2 are FAT12,
  /// FAT16 and FAT32. Absent when that cannot be told.
  virtual std::optional<quint32> fileSystemSubtype(const QString &mountPoint) const = 0;

  // In bytes, of the disk of this BSD name. Absent when it cannot be opened or does not say. The
  // device is opened for this one question, which may have to wait until it has woken up.

  virtual std::optional<quint32> physicalBlockSize(const QString &bsdName) const = 0;
  virtual std::optional<quint32> logicalBlockSize(const QString &bsdName) const = 0;
};
