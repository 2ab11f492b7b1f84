#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"
#include "Foundation/Paths.h"

using namespace Qt::StringLiterals;

std::optional<QString> DiskArbitrator::findMountPoint(const QString &reference) {
  if (needsLegacyMode(reference)) return findMountPointLegacy(reference);
  const QVariant path = descriptionValue(reference, kDADiskDescriptionVolumePathKey);
  if (!path.isValid()) return std::nullopt;
  return withoutNull(pathOfUrl(path.toUrl()));
}

bool DiskArbitrator::isThere(const std::optional<QString> &path) {
  if (!path.has_value() || !path->startsWith(u'/')) return false;
  Platform &platform = Platform::current();
  // A volume's mount point exists, whether the volume answers or not.
  return platform.diskService().descriptionOfVolume(canonicalPath(*path)).has_value() ||
         !platform.volumeFiles().look(*path).realPath.isEmpty();
}

void DiskArbitrator::findProcessesUsing(const QString &reference,
                                        const std::function<void(const QStringList &)> &answer) {
  const auto mountPoint = findMountPoint(reference);
  if (!mountPoint) return answer({});
  Platform::current().volumeFiles().findProcessesUsing(*mountPoint, answer);
}

QStringList DiskArbitrator::findProcessesUsing(const QString &reference) {
  RunLoop &runLoop = Platform::current().runLoop();
  QStringList processes;
  bool finished = false;
  findProcessesUsing(reference, [&](const QStringList &found) {
    processes = found;
    finished = true;
    runLoop.stop();
  });
  runLoop.run(finished);
  return processes;
}

bool DiskArbitrator::isMountPointValid(const QString &reference) {
  const QString path = findMountPoint(reference).value_or(QString());
  return !path.isEmpty() && path != "(null)"_L1;
}
