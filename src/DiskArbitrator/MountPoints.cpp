#include <QUrl>

#include "DiskArbitrator/DescriptionValues.h"
#include "DiskArbitrator/DiskArbitrator.h"

std::optional<QString> DiskArbitrator::findMountPoint(const QString &reference) {
  const QVariant path = descriptionValue(reference, kDADiskDescriptionVolumePathKey);
  if (!path.isValid()) return std::nullopt;
  return withoutNull(path.toUrl().toLocalFile());
}

bool DiskArbitrator::isMountPointValid(const QString &reference) {
  const QString mountPoint = findMountPoint(reference).value_or(QString());
  return !mountPoint.isEmpty() && mountPoint != QLatin1StringView("(null)");
}
