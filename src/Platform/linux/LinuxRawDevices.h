#pragma once

// Facts beyond descriptions: of a device from the kernel, of a volume's kind from the disk service.

#include "Platform/RawDevices.h"

class LinuxDiskService;

class LinuxRawDevices final : public RawDevices {
 public:
  /// `disks` must outlive this object.
  explicit LinuxRawDevices(const LinuxDiskService &disks) : _disks(disks) {}

  bool isPrivileged() const override;
  std::optional<quint32> fileSystemSubtype(const QString &mountPoint) const override;
  std::optional<quint32> physicalBlockSize(const QString &bsdName) const override;
  std::optional<quint32> logicalBlockSize(const QString &bsdName) const override;

 private:
  std::optional<quint32> ask(const QString &bsdName, unsigned long request) const;

  const LinuxDiskService &_disks;
};
