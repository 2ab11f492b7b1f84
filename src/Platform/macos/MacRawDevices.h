#pragma once

#include "Platform/RawDevices.h"

class MacRawDevices final : public RawDevices {
 public:
  bool isPrivileged() const override;
  std::optional<quint32> fileSystemSubtype(const QString &mountPoint) const override;
  std::optional<quint32> physicalBlockSize(const QString &bsdName) const override;
  std::optional<quint32> logicalBlockSize(const QString &bsdName) const override;
};
