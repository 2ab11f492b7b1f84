#include "Platform/simulated/Describe.h"

#include "Foundation/Paths.h"
#include "Platform/common/MediaIcon.h"

namespace {

void insertText(DiskDescription &description, const QString &key, const QString &text) {
  if (!text.isEmpty()) description.insert(key, text);
}

void insertUUID(DiskDescription &description, const QString &key, const QString &text) {
  if (const auto uuid = DiskUUID::fromText(text))
    description.insert(key, QVariant::fromValue(*uuid));
}

StorageKind storageKindOf(const SimulatedDisk &disk) {
  if (disk.protocol == QLatin1StringView("Virtual Interface")) return StorageKind::DiskImage;
  if (disk.protocol == QLatin1StringView("ATAPI")) return StorageKind::Optical;
  const bool isPlugged = disk.isEjectable || disk.protocol == QLatin1StringView("USB");
  return isPlugged ? StorageKind::Removable : StorageKind::Internal;
}

}  // namespace

DiskDescription describe(const SimulatedDisk &disk) {
  DiskDescription description = {
      {kDADiskDescriptionMediaBSDNameKey, disk.bsdName()},
      {kDADiskDescriptionMediaBSDUnitKey, qint64{disk.unit}},
      {kDADiskDescriptionMediaWritableKey, disk.isWritable},
      {kDADiskDescriptionMediaEjectableKey, disk.isEjectable},
      {kDADiskDescriptionDeviceInternalKey, disk.isInternal},
      {kDADiskDescriptionMediaIconKey, disk.icon.value_or(mediaIcon(storageKindOf(disk)))},
  };
  insertText(description, kDADiskDescriptionMediaNameKey, disk.media);
  insertText(description, kDADiskDescriptionMediaContentKey, disk.scheme);
  insertText(description, kDADiskDescriptionDeviceProtocolKey, disk.protocol);
  insertText(description, kDiskDescriptionDeviceNodeKey, disk.deviceNode);
  insertUUID(description, kDADiskDescriptionMediaUUIDKey, disk.uuid);
  return description;
}

DiskDescription describe(const SimulatedDisk &disk, const SimulatedPartition &partition) {
  DiskDescription description = describe(disk);
  for (const QString &key : {kDADiskDescriptionMediaNameKey, kDADiskDescriptionMediaContentKey,
                             kDADiskDescriptionMediaUUIDKey, kDiskDescriptionDeviceNodeKey}) {
    description.remove(key);
  }
  description.insert(kDADiskDescriptionMediaBSDNameKey, disk.bsdName(partition));
  insertText(description, kDADiskDescriptionMediaNameKey, partition.media);
  insertText(description, kDADiskDescriptionMediaContentKey, partition.content);
  insertText(description, kDADiskDescriptionVolumeKindKey, partition.volumeKind);
  insertText(description, kDiskDescriptionDeviceNodeKey, partition.deviceNode);
  insertUUID(description, kDADiskDescriptionMediaUUIDKey, partition.uuid);
  insertUUID(description, kDADiskDescriptionVolumeUUIDKey, partition.volumeUUID);
  if (partition.mountPoint.has_value()) {
    insertText(description, kDADiskDescriptionVolumeNameKey, partition.volumeName);
    description.insert(kDADiskDescriptionVolumePathKey, urlOfPath(*partition.mountPoint));
  }
  return description;
}
