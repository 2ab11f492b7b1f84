#include "DiskArbitrator/DiskArbitrator.h"

QImage DiskArbitrator::findVolumeIcon(const QString & /*partition*/) {
  return Platform::current().systemFiles().image(QStringLiteral(
      "/System/Library/CoreServices/CoreTypes.bundle/Contents/Resources/AlertCautionIcon.icns"));
}
