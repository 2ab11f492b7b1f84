#include <QUrl>

#include "DiskArbitrator/DescriptionValues.h"
#include "DiskArbitrator/DiskArbitrator.h"

using namespace Qt::StringLiterals;

std::optional<QString> DiskArbitrator::findMountPoint(const QString &reference) {
  if (needsLegacyMode(reference)) return findMountPointLegacy(reference);
  const QVariant path = descriptionValue(reference, kDADiskDescriptionVolumePathKey);
  if (!path.isValid()) return std::nullopt;
  return withoutNull(path.toUrl().toLocalFile());
}

QStringList DiskArbitrator::findProcessesUsing(const QString &reference) {
  const auto mountPoint = findMountPoint(reference);
  return mountPoint ? Platform::current().processesUsing(*mountPoint) : QStringList();
}

bool DiskArbitrator::isMountPointValid(const QString &reference) {
  const QString path = findMountPoint(reference).value_or(QString());
  return !path.isEmpty() && path != "(null)"_L1;
}
