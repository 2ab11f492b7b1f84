#include "Query/Operations.h"

#include <QJsonArray>
#include <QJsonObject>

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"
#include "Foundation/Paths.h"

using namespace Qt::StringLiterals;

namespace {

using DA = DiskArbitrator;

QJsonValue json(const std::optional<QString> &text) {
  return text.has_value() ? QJsonValue(*text) : QJsonValue();
}
QJsonValue json(const QString &text) {
  return text;
}
QJsonValue json(bool value) {
  return value;
}
QJsonValue json(qint32 value) {
  return value;
}
QJsonValue json(const QStringList &list) {
  return QJsonArray::fromStringList(list);
}
QJsonValue json(const QImage &image) {
  if (image.isNull()) return {};
  return u"%1x%2"_s.arg(image.width()).arg(image.height());
}
QJsonValue json(const std::optional<DiskDescription> &description) {
  if (!description.has_value()) return {};
  QJsonObject object;
  for (auto entry = description->cbegin(); entry != description->cend(); ++entry) {
    if (entry->metaType() == QMetaType::fromType<DiskUUID>()) {
      object[entry.key()] = entry->value<DiskUUID>().description().section("> "_L1, 1);
    } else if (entry->metaType() == QMetaType::fromType<QUrl>()) {
      object[entry.key()] = pathOfUrl(entry->toUrl());
    } else {
      object[entry.key()] = QJsonValue::fromVariant(*entry);
    }
  }
  return object;
}

template <typename Result>
Operation ofReference(QLatin1StringView name, Result (*function)(const QString &),
                      QLatin1StringView sentence, const QStringList &sentinels = {u"N/A"_s}) {
  return {QString(name), Operation::Takes::Reference, QString(sentence), sentinels,
          [function](const QString &reference) { return json(function(reference)); }};
}

template <typename Result>
Operation ofNothing(QLatin1StringView name, Result (*function)(), QLatin1StringView sentence) {
  return {QString(name),
          Operation::Takes::Nothing,
          QString(sentence),
          {u"N/A"_s},
          [function](const QString &) { return json(function()); }};
}

Operation ofFolder(QLatin1StringView name, bool (*function)(const QString &),
                   QLatin1StringView sentence) {
  Operation operation = ofReference(name, function, sentence, {});
  operation.takes = Operation::Takes::Folder;
  return operation;
}

}  // namespace

const QVector<Operation> &operations() {
  static const QVector<Operation> all = {
      ofNothing("getAlldisks"_L1, DA::getAlldisks, "Every disk and partition."_L1),
      ofNothing("findAllEFIdisk"_L1, DA::findAllEFIdisk, "Every EFI System Partition."_L1),
      ofNothing("getListOfMountedMedia"_L1, DA::getListOfMountedMedia,
                "The names of the mounted volumes."_L1),
      ofReference("getDAdiskDescriptionFromBSDorMountpoint"_L1,
                  getDAdiskDescriptionFromBSDorMountpoint,
                  "All that the disk service says of it."_L1, {}),
      ofReference("findBSDName"_L1, DA::findBSDName, "Its BSD name."_L1),
      ofNothing("findBSDNameOfCurrentVolume"_L1, DA::findBSDNameOfCurrentVolume,
                "The BSD name of what is mounted at \"/\"."_L1),
      ofReference("findBSDdiskParent"_L1, DA::findBSDdiskParent, "The disk that holds it."_L1,
                  {u"disk(null)"_s}),
      ofReference("findSliceNumberFromPartitionDisk"_L1, DA::findSliceNumberFromPartitionDisk,
                  "The number of the partition."_L1),
      ofReference("findEFIdiskOfTheParentDisk"_L1, DA::findEFIdiskOfTheParentDisk,
                  "The EFI System Partition of its disk."_L1),
      ofReference("findAllPartitionNameParentSeparatedByComma"_L1,
                  DA::findAllPartitionNameParentSeparatedByComma,
                  "The names of everything on its disk, in one line."_L1),
      ofReference("findPartitionName"_L1, DA::findPartitionName,
                  "What the partition is called."_L1),
      ofReference("findMountPointName"_L1, DA::findMountPointName,
                  "What the volume is called, while it is mounted."_L1),
      ofReference("findMountPoint"_L1, DA::findMountPoint, "Where it is mounted."_L1),
      ofReference("findMountPointLegacy"_L1, DA::findMountPointLegacy,
                  "Where it is mounted, as /bin/df says."_L1),
      ofReference("isMountPointValid"_L1, DA::isMountPointValid, "Whether it is mounted."_L1),
      ofReference<QStringList>("findProcessesUsing"_L1, DA::findProcessesUsing,
                               "The processes that use it while it is mounted."_L1),
      ofReference("findDeviceNode"_L1, DA::findDeviceNode, "What other programs call it."_L1),
      ofReference("findPartitionSchemeMap"_L1, DA::findPartitionSchemeMap,
                  "The partition scheme of its disk."_L1),
      ofReference("findVolumeMediaContent"_L1, DA::findVolumeMediaContent,
                  "The type of the partition, or the scheme of the disk."_L1),
      ofReference("findDeviceProtocol"_L1, DA::findDeviceProtocol, "How its disk is attached."_L1),
      ofReference("findVolumeUUID"_L1, DA::findVolumeUUID, "The UUID of the volume."_L1,
                  {u"disk(null)"_s, u"N/A"_s}),
      ofReference("findDiskUUID"_L1, DA::findDiskUUID, "The UUID of the disk or partition."_L1),
      ofReference("isGPT"_L1, DA::isGPT, "Whether its disk has a GUID partition table."_L1),
      ofReference("isWritable"_L1, DA::isWritable, "Whether its disk can be written."_L1),
      ofReference("isEjectable"_L1, DA::isEjectable, "Whether its disk can be ejected."_L1),
      ofReference("isInternal"_L1, DA::isInternal, "Whether its disk is built in."_L1),
      ofReference(
          "findFileSystemPersonality"_L1, DA::findFileSystemPersonality,
          "The file system; a FAT volume is mounted to see its width, and stays mounted."_L1,
          {u"N/A"_s, u"Unknown"_s}),
      ofReference("findSectorSize"_L1, DA::findSectorSize,
                  "The block size of its disk; for root."_L1, {u"N/A"_s, u"Not Priviliged"_s}),
      ofReference("findVolumeIcon"_L1, DA::findVolumeIcon, "The size of its picture."_L1),
      ofFolder("chosenFolderIsEmpty"_L1, DA::chosenFolderIsEmpty,
               "Whether the folder could be mounted on."_L1),
      ofNothing("findOSXMinorVersion"_L1, DA::findOSXMinorVersion,
                "The second number of the system's version."_L1),
  };
  return all;
}
