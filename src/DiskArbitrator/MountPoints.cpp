#include <QUrl>

#include "DiskArbitrator/DescriptionValues.h"
#include "DiskArbitrator/DiskArbitrator.h"

std::optional<QString> DiskArbitrator::findMountPoint(const QString &reference) {
  const QVariant path = descriptionValue(reference, kDADiskDescriptionVolumePathKey);
  if (!path.isValid()) return std::nullopt;
  return withoutNull(path.toUrl().toLocalFile());
}

bool DiskArbitrator::isMountPointValid(const QString &reference) {
  return !findMountPoint(reference).value_or(QString()).isEmpty();
}
