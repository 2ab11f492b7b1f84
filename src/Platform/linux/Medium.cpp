#include "Platform/linux/Medium.h"

#include "Platform/common/MediaIcon.h"
#include "Platform/linux/BlockDevices.h"
#include "Platform/linux/MediumNames.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargestSlice = 1'000'000;

bool holdsSomething(const ServiceObject &block) {
  return block.device() != 0 && block.number(kBlockInterface, u"Size"_s).value_or(0) > 0;
}

template <typename Value>
void insertKnown(DiskDescription &description, const QString &key,
                 const std::optional<Value> &value) {
  if (value) description.insert(key, QVariant::fromValue(*value));
}

QString deviceNode(const ServiceObject &block) {
  const QString preferred = block.fileName(kBlockInterface, u"PreferredDevice"_s);
  return preferred.isEmpty() ? block.fileName(kBlockInterface, u"Device"_s) : preferred;
}

StorageKind storageKindOf(const ServiceObject &disk, const ServiceObject &drive) {
  if (disk.has(kLoopInterface)) return StorageKind::DiskImage;
  if (drive.flag(kDriveInterface, u"Optical"_s)) return StorageKind::Optical;
  // Anything that is plugged, such as sticks and cards, even if it does not report itself as
  // removable.
  for (const QString &property : {u"Removable"_s, u"MediaRemovable"_s}) {
    if (drive.flag(kDriveInterface, property)) return StorageKind::Removable;
  }
  const auto bus = drive.text(kDriveInterface, u"ConnectionBus"_s).value_or(QString());
  return bus.isEmpty() ? StorageKind::Internal : StorageKind::Removable;
}

void describeDevice(DiskDescription &description, const ServiceObject &disk,
                    const ServiceObject &drive) {
  insertKnown(description, kDADiskDescriptionDeviceProtocolKey, protocolOf(disk, drive));
  description.insert(kDADiskDescriptionMediaIconKey, mediaIcon(storageKindOf(disk, drive)));
  const bool isLoop = disk.has(kLoopInterface);
  const bool isRemovable = drive.flag(kDriveInterface, u"Removable"_s);
  const bool isEjectable = isLoop || isRemovable || drive.flag(kDriveInterface, u"Ejectable"_s);
  description.insert(kDADiskDescriptionMediaEjectableKey, isEjectable);
  if (isLoop || !drive.isEmpty()) {
    description.insert(kDADiskDescriptionDeviceInternalKey, !isLoop && !isRemovable);
  }
}

Medium describeBlock(const QString &path, const ServiceObject &block, int unit, int slice) {
  Medium medium{path,
                unit,
                slice,
                block.device(),
                block.text(kBlockInterface, u"IdLabel"_s).value_or(QString()),
                block.text(kBlockInterface, u"IdVersion"_s).value_or(QString()),
                {}};
  DiskDescription &description = medium.description;
  description.insert(kDADiskDescriptionMediaBSDNameKey, medium.bsdName());
  description.insert(kDADiskDescriptionMediaBSDUnitKey, qint64{unit});
  description.insert(kDADiskDescriptionMediaWritableKey,
                     !block.flag(kBlockInterface, u"ReadOnly"_s));
  description.insert(kDiskDescriptionDeviceNodeKey, deviceNode(block));
  const auto kind = volumeKindOf(block);
  insertKnown(description, kDADiskDescriptionVolumeKindKey, kind);
  const auto uuid = block.text(kBlockInterface, u"IdUUID"_s);
  if (kind && uuid) {
    insertKnown(description, kDADiskDescriptionVolumeUUIDKey, DiskUUID::fromText(*uuid));
  }
  return medium;
}

}  // namespace

QString Medium::wholeDisk() const {
  return u"disk%1"_s.arg(unit);
}

QString Medium::bsdName() const {
  return slice == 0 ? wholeDisk() : u"%1s%2"_s.arg(wholeDisk()).arg(slice);
}

bool isWholeDisk(const ServiceObject &object) {
  if (!object.has(kBlockInterface) || object.has(kPartitionInterface)) return false;
  const bool isEmptyLoop =
      object.has(kLoopInterface) && object.fileName(kLoopInterface, u"BackingFile"_s).isEmpty();
  const QString name = kernelNameOf(object);
  return holdsSomething(object) && !isEmptyLoop && !name.isEmpty() && !isMemoryDevice(name);
}

std::optional<Medium> describeDisk(const QString &path, const ServiceObject &block,
                                   const ServiceObject &drive, int unit) {
  if (!isWholeDisk(block)) return std::nullopt;
  Medium medium = describeBlock(path, block, unit, 0);
  medium.description.insert(kDADiskDescriptionMediaNameKey, mediaNameOfDisk(block, drive));
  insertKnown(medium.description, kDADiskDescriptionMediaContentKey, contentOfDisk(block));
  describeDevice(medium.description, block, drive);
  return medium;
}

std::optional<Medium> describePartition(const QString &path, const ServiceObject &partition,
                                        const ServiceObject &disk, const ServiceObject &drive,
                                        int unit) {
  const auto number = partition.number(kPartitionInterface, u"Number"_s).value_or(0);
  const bool isPartition = partition.has(kBlockInterface) && partition.has(kPartitionInterface);
  if (!isPartition || number == 0 || number > kLargestSlice || !holdsSomething(partition)) {
    return std::nullopt;
  }
  Medium medium = describeBlock(path, partition, unit, static_cast<int>(number));
  DiskDescription &description = medium.description;
  description.insert(kDADiskDescriptionMediaNameKey, mediaNameOfPartition(partition));
  insertKnown(description, kDADiskDescriptionMediaContentKey, contentOfPartition(partition));
  const auto uuid = partition.text(kPartitionInterface, u"UUID"_s);
  if (uuid) insertKnown(description, kDADiskDescriptionMediaUUIDKey, DiskUUID::fromText(*uuid));
  describeDevice(description, disk, drive);
  return medium;
}
