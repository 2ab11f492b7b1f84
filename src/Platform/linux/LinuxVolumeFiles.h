#pragma once

// Files on volumes, looked at by processes of their own.

#include "Platform/VolumeFiles.h"
#include "Platform/common/VolumeIcons.h"

class LinuxDiskService;

class LinuxVolumeFiles final : public VolumeFiles {
 public:
  /// The service must outlive this.
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
