// Questions that touch the mounted file system or the device.

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"

using namespace Qt::StringLiterals;

namespace {

/// Mounts the FAT volume, and leaves it mounted. Absent when that fails.
OptionalText widthOfFAT(const QString &bsdName) {
  if (!DiskArbitrator::mountPartition(bsdName, std::nullopt)) return std::nullopt;
  const OptionalText mountPoint = DiskArbitrator::findMountPoint(bsdName);
  if (!DiskArbitrator::isThere(mountPoint)) return std::nullopt;

  const auto subtype = Platform::current().rawDevices().fileSystemSubtype(*mountPoint);
  const QString widths[] = {u"Fat12"_s, u"Fat16"_s, u"Fat32"_s};
  return subtype.has_value() && *subtype < std::size(widths) ? widths[*subtype] : u"Unknown"_s;
}

}  // namespace

std::optional<QString> DiskArbitrator::findFileSystemPersonality(const QString &reference) {
  const OptionalText kind = descriptionText(reference, kDADiskDescriptionVolumeKindKey);
  const QString bsdName = findBSDName(reference).value_or(QString());
  if (needsLegacyMode(bsdName)) return u"Fat32"_s;
  const OptionalText width = kind == u"msdos"_s ? widthOfFAT(bsdName) : std::nullopt;
  return width.has_value() ? width : kind.value_or(u"N/A"_s);
}

std::optional<QString> DiskArbitrator::findSectorSize(const QString &reference) {
  const RawDevices &devices = Platform::current().rawDevices();
  if (!devices.isPrivileged()) return u"Not Priviliged"_s;
  const QString disk = findBSDdiskParent(reference);
  if (const auto size = devices.physicalBlockSize(disk)) return u"Physical %1-bytes"_s.arg(*size);
  if (const auto size = devices.logicalBlockSize(disk)) return u"Logical %1-bytes"_s.arg(*size);
  return u"N/A"_s;
}
