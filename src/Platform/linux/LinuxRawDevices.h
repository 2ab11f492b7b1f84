#pragma once

// What the kernel tells of a device, and the disk service of a volume's kind, beyond descriptions.

#include "Platform/RawDevices.h"

class LinuxDiskService;

class LinuxRawDevices final : public RawDevices {
 public:
  /// The service must outlive this.
  explicit LinuxRawDevices(const LinuxDiskService &disks) : _disks(disks) {}

  bool isPrivileged() const override;
  std::optional<quint32> fileSystemSubtype(const QString &mountPoint) const override;
  std::optional<quint32> physicalBlockSize(const QString &bsdName) const override;
  std::optional<quint32> logicalBlockSize(const QString &bsdName) const override;

 private:
  std::optional<quint32> ask(const QString &bsdName, unsigned long request) const;

  const LinuxDiskService &_disks;
};
