#include <QUrl>

#include "DiskArbitrator/DescriptionValues.h"
#include "DiskArbitrator/DiskArbitrator.h"

std::optional<QString> DiskArbitrator::findMountPoint(const QString &reference) {
  const QVariant path = descriptionValue(reference, kDADiskDescriptionVolumePathKey);
  if (!path.isValid()) return std::nullopt;
  return withoutNull(path.toUrl().toLocalFile());
}

QStringList DiskArbitrator::findProcessesUsing(const QString &reference) {
  const auto mountPoint = findMountPoint(reference);
  return mountPoint ? Platform::current().processesUsing(*mountPoint) : QStringList();
}

bool DiskArbitrator::isMountPointValid(const QString &reference) {
  return !findMountPoint(reference).value_or(QString()).isEmpty();
}
