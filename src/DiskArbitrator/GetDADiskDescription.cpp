#include "DiskArbitrator/GetDADiskDescription.h"

#include "Foundation/Paths.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

std::optional<DiskDescription> getDAdiskDescriptionFromBSDorMountpoint(const QString &reference) {
  DiskService &service = Platform::current().diskService();

  // Checked before the file system: "/dev/disk2s1" is a name whether that node exists or not.
  const bool isDevicePath = reference.startsWith("/dev/disk"_L1);
  if (isDevicePath || reference.startsWith("disk"_L1)) {
    QString name = reference;
    if (isDevicePath) name.remove("/dev/"_L1);
    return service.descriptionOfMedia(name).value_or(DiskDescription());
  }
  if (!reference.startsWith(u'/')) return std::nullopt;
  const QString path = canonicalPath(reference);
  // A path that the service has mounted exists, whether the volume answers or not.
  if (const auto description = service.descriptionOfVolume(path)) return description;
  const QString realPath = Platform::current().volumeFiles().look(path).realPath;
  if (realPath.isEmpty()) return std::nullopt;
  return service.descriptionOfVolume(realPath).value_or(DiskDescription());
}
