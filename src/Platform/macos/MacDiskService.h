#pragma once

// The disk arbitration service as the seam's disk service.

#include "Platform/Platform.h"
#include "Platform/macos/DiskArbitration.h"

class MacDiskService final : public DiskService {
 public:
  Presence presence() const override;
  QString name() const override;
  std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const override;
  std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const override;
  void mount(const QString &bsdName, const std::optional<QString> &path,
             Completion completion) override;
  void unmount(const QString &bsdName, UnmountOption option, Completion completion) override;

 private:
  DiskArbitration _arbitration;
};
