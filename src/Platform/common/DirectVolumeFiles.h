#pragma once

// Reads volumes in this process. Blocks for as long as a volume takes.

#include "Platform/VolumeFiles.h"
#include "Platform/common/VolumeIcons.h"

class DirectVolumeFiles : public VolumeFiles {
 public:
  LookAtPath look(const QString &path) override;
  std::optional<QList<FolderEntry>> entries(const QString &folder) override;
  void makeFolder(const QString &path, Parents parents) override;
  std::optional<QImage> image(const QString &path) override;

 private:
  VolumeIcons _icons;
};
