#include "Platform/linux/MediumNames.h"

#include "Platform/linux/PartitionTypes.h"

using namespace Qt::StringLiterals;

namespace {

QString lastComponent(const QString &path) {
  return path.section(u'/', -1);
}

QString vendorAndModel(const ServiceObject &drive) {
  const QString vendor = drive.text(kDriveInterface, u"Vendor"_s).value_or(QString()).trimmed();
  const QString model = drive.text(kDriveInterface, u"Model"_s).value_or(QString()).trimmed();
  if (model.startsWith(vendor, Qt::CaseInsensitive)) return model;
  return QString(vendor + u' ' + model).trimmed();
}

QString mappedName(const ServiceObject &block) {
  const QString preferred = lastComponent(block.fileName(kBlockInterface, u"PreferredDevice"_s));
  return preferred.isEmpty() ? lastComponent(block.fileName(kBlockInterface, u"Device"_s))
                             : preferred;
}

}  // namespace

QString kernelNameOf(const ServiceObject &block) {
  QString device = block.fileName(kBlockInterface, u"Device"_s);
  if (!device.startsWith("/dev/"_L1)) return {};
  return device.sliced(5).replace(u'/', u'!');
}

QString mediaNameOfPartition(const ServiceObject &partition) {
  const QString type = partition.text(kPartitionInterface, u"Type"_s).value_or(QString());
  if (isSystemPartitionType(type)) return u"EFI System Partition"_s;
  const QString name = partition.text(kPartitionInterface, u"Name"_s).value_or(QString());
  return name.trimmed().isEmpty() ? partitionTypeName(type) : name;
}

QString mediaNameOfDisk(const ServiceObject &block, const ServiceObject &drive) {
  const QString names[] = {lastComponent(block.fileName(kLoopInterface, u"BackingFile"_s)),
                           vendorAndModel(drive), mappedName(block)};
  for (const QString &name : names) {
    if (!name.trimmed().isEmpty()) return name;
  }
  return u"Disk"_s;
}

std::optional<QString> contentOfDisk(const ServiceObject &block) {
  const auto type = block.text(kPartitionTableInterface, u"Type"_s);
  if (type == "gpt"_L1) return u"GUID_partition_scheme"_s;
  if (type == "dos"_L1) return u"FDisk_partition_scheme"_s;
  return std::nullopt;
}

std::optional<QString> contentOfPartition(const ServiceObject &partition) {
  const auto type = partition.text(kPartitionInterface, u"Type"_s);
  if (!type || type->isEmpty()) return std::nullopt;
  return type->startsWith("0x"_L1) ? *type : type->toUpper();
}

std::optional<QString> protocolOf(const ServiceObject &block, const ServiceObject &drive) {
  if (block.has(kLoopInterface)) return u"Virtual Interface"_s;
  const auto bus = drive.text(kDriveInterface, u"ConnectionBus"_s);
  if (bus == "usb"_L1) return u"USB"_s;
  if (bus == "sdio"_L1) return u"Secure Digital"_s;
  if (bus == "ieee1394"_L1) return u"FireWire"_s;
  if (kernelNameOf(block).startsWith("nvme"_L1)) return u"PCI-Express"_s;
  return std::nullopt;
}

std::optional<QString> volumeKindOf(const ServiceObject &block) {
  if (!block.has(kFilesystemInterface)) return std::nullopt;
  const auto type = block.text(kBlockInterface, u"IdType"_s);
  if (!type || type->isEmpty()) return std::nullopt;
  return type == "vfat"_L1 ? u"msdos"_s : *type;
}
