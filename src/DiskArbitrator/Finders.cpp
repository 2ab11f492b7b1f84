#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"

using namespace Qt::StringLiterals;

namespace {

/// The UUID without the prefix that the service prints before it. A text without the prefix is
/// kept.
QString uuidText(const QVariant &value) {
  OptionalText described;
  if (value.isValid()) {
    const bool isUUID = value.metaType() == QMetaType::fromType<DiskUUID>();
    described = isUUID ? value.value<DiskUUID>().description() : value.toString();
  }
  const QString text = "disk"_L1 + printed(described);
  const QStringList pieces = text.split("> "_L1);
  return withoutNull(pieces.value(1, text));
}

bool parentFlag(const QString &reference, const QString &key) {
  return descriptionValue(DiskArbitrator::findBSDdiskParent(reference), key).toBool();
}

}  // namespace

std::optional<QString> DiskArbitrator::findBSDName(const QString &reference) {
  return descriptionText(reference, kDADiskDescriptionMediaBSDNameKey);
}

std::optional<QString> DiskArbitrator::findBSDNameOfCurrentVolume() {
  return findBSDName(u"/"_s);
}

bool DiskArbitrator::isSameDisk(const QString &reference, const QString &other) {
  return areEqualTexts(findBSDName(reference), findBSDName(other));
}

QString DiskArbitrator::findBSDdiskParent(const QString &reference) {
  // The service's unit number, not the digits of the name: the reference may be a path.
  const QVariant unit = descriptionValue(reference, kDADiskDescriptionMediaBSDUnitKey);
  return "disk"_L1 + (unit.isValid() ? QString::number(unit.toLongLong()) : printed(std::nullopt));
}

QString DiskArbitrator::findSliceNumberFromPartitionDisk(const QString &reference) {
  // "disk0s1" falls into "di", "k0" and "1".
  const QStringList pieces = findBSDName(reference).value_or(QString()).split(u's');
  if (pieces.size() != 3 || leadingInteger(pieces.last()) == 0) return u"N/A"_s;
  return pieces.last();
}

std::optional<QString> DiskArbitrator::findPartitionName(const QString &reference) {
  return descriptionText(reference, kDADiskDescriptionMediaNameKey);
}

std::optional<QString> DiskArbitrator::findMountPointName(const QString &reference) {
  if (needsLegacyMode(reference)) return u"EFI"_s;
  return descriptionText(reference, kDADiskDescriptionVolumeNameKey).value_or(u"N/A"_s);
}

std::optional<QString> DiskArbitrator::findPartitionSchemeMap(const QString &reference) {
  return descriptionText(findBSDdiskParent(reference), kDADiskDescriptionMediaContentKey);
}

std::optional<QString> DiskArbitrator::findDeviceProtocol(const QString &reference) {
  return descriptionText(reference, kDADiskDescriptionDeviceProtocolKey);
}

std::optional<QString> DiskArbitrator::findVolumeUUID(const QString &reference) {
  return uuidText(descriptionValue(reference, kDADiskDescriptionVolumeUUIDKey));
}

std::optional<QString> DiskArbitrator::findDiskUUID(const QString &reference) {
  const QVariant value = descriptionValue(reference, kDADiskDescriptionMediaUUIDKey);
  if (!value.isValid()) return std::nullopt;
  return uuidText(value);
}

std::optional<QString> DiskArbitrator::findVolumeMediaContent(const QString &reference) {
  return descriptionText(reference, kDADiskDescriptionMediaContentKey);
}

std::optional<QString> DiskArbitrator::findDeviceNode(const QString &reference) {
  return descriptionText(reference, kDiskDescriptionDeviceNodeKey);
}

bool DiskArbitrator::isGPT(const QString &reference) {
  return findPartitionSchemeMap(reference) == u"GUID_partition_scheme"_s;
}

bool DiskArbitrator::isWritable(const QString &reference) {
  return parentFlag(reference, kDADiskDescriptionMediaWritableKey);
}

bool DiskArbitrator::isEjectable(const QString &reference) {
  return parentFlag(reference, kDADiskDescriptionMediaEjectableKey);
}

bool DiskArbitrator::isInternal(const QString &reference) {
  return parentFlag(reference, kDADiskDescriptionDeviceInternalKey);
}
