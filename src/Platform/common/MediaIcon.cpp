#include "Platform/common/MediaIcon.h"

using namespace Qt::StringLiterals;

namespace {

QString fileOf(StorageKind kind) {
  switch (kind) {
    case StorageKind::Removable:
      return u"Removable.icns"_s;
    case StorageKind::DiskImage:
      return u"DiskImage.icns"_s;
    case StorageKind::Optical:
      return u"Optical.icns"_s;
    case StorageKind::Internal:
      break;
  }
  return u"Internal.icns"_s;
}

}  // namespace

QVariantMap mediaIcon(StorageKind kind) {
  return {{kMediaIconBundleKey, u"com.brinmoor.Keldra.StorageIcons"_s},
          {kMediaIconFileKey, fileOf(kind)}};
}
