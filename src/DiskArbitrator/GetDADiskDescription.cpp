#include "DiskArbitrator/GetDADiskDescription.h"

#include "Foundation/Text.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

std::optional<DiskDescription> getDAdiskDescriptionFromBSDorMountpoint(const QString &reference) {
  DiskService &service = Platform::current().diskService();

  // Asked before whether a file is there: "/dev/disk2s1" is a name whether that node exists or not.
  const bool isDevicePath = reference.startsWith("/dev/disk"_L1);
  if (isDevicePath || reference.startsWith("disk"_L1)) {
    QString name = reference;
    if (isDevicePath) name.remove("/dev/"_L1);
    return service.descriptionOfMedia(name).value_or(DiskDescription());
  }
  if (reference.startsWith(u'/') && fileExistsAtPath(reference)) {
    return service.descriptionOfVolume(reference).value_or(DiskDescription());
  }
  return std::nullopt;
}
