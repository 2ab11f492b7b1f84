#include <QFileInfo>

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"

using namespace Qt::StringLiterals;

namespace {

/// Where a volume's own icon would be. Absent while it is not mounted.
std::optional<QString> volumeIconPath(const QString &partition) {
  const auto mountPoint = DiskArbitrator::findMountPoint(partition);
  if (!mountPoint) return std::nullopt;
  return *mountPoint +
         (mountPoint->endsWith(u'/') ? u".VolumeIcon.icns"_s : u"/.VolumeIcon.icns"_s);
}

/// Null when the description names no picture, or one that does not exist.
QImage mediaIconOf(const QString &partition, const std::optional<QString> &volumeIcon) {
  Platform &platform = Platform::current();
  const QVariantMap record = descriptionValue(partition, kDADiskDescriptionMediaIconKey).toMap();
  const auto bundle =
      platform.systemFiles().driverBundle(record.value(kMediaIconBundleKey).toString());
  if (!bundle) return {};
  const SystemFiles &files = Platform::current().systemFiles();
  const QFileInfo file(record.value(kMediaIconFileKey).toString());
  const auto resource = files.bundleResource(*bundle, file.completeBaseName(), file.suffix());
  if (resource) return files.image(*resource).value_or(QImage());
  // When the bundle does not open, the volume's own icon is tried again.
  return volumeIcon ? platform.volumeFiles().image(*volumeIcon).value_or(QImage()) : QImage();
}

}  // namespace

QImage DiskArbitrator::findVolumeIcon(const QString &partition) {
  const SystemFiles &files = Platform::current().systemFiles();
  const QString caution = files
                              .bundleResource(u"/System/Library/CoreServices/CoreTypes.bundle"_s,
                                              u"AlertCautionIcon"_s, u"icns"_s)
                              .value_or(QString());

  const std::optional<QString> volumeIcon = volumeIconPath(partition);
  // An icon file that can be read is the answer, even if it does not decode.
  const auto own = volumeIcon ? Platform::current().volumeFiles().image(*volumeIcon) : std::nullopt;
  if (own) return *own;

  const QImage ofMedia = mediaIconOf(partition, volumeIcon);
  return ofMedia.isNull() ? files.image(caution).value_or(QImage()) : ofMedia;
}
