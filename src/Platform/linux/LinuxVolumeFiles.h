#pragma once

// Files on volumes, which helper processes read.

#include "Platform/VolumeFiles.h"
#include "Platform/common/VolumeIcons.h"

class LinuxDiskService;

class LinuxVolumeFiles final : public VolumeFiles {
 public:
  /// `disks` must outlive this object.
  explicit LinuxVolumeFiles(LinuxDiskService &disks) : _disks(disks) {}

  LookAtPath look(const QString &path) override;
  std::optional<QList<FolderEntry>> entries(const QString &folder) override;
  void makeFolder(const QString &path, Parents parents) override;
  std::optional<QImage> image(const QString &path) override;
  void findProcessesUsing(const QString &mountPoint,
                          std::function<void(const QStringList &)> answer) override;

 private:
  LinuxDiskService &_disks;
  VolumeIcons _icons;
};
