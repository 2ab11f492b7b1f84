#pragma once

// What the disk service knows of one disk or partition, as a record under the keys below.
//
//   const auto description = platform.diskService().descriptionOfMedia(u"disk0s1"_s);
//   const QString name = description->value(kDADiskDescriptionMediaNameKey).toString();
//
// A key that is not in the record is not known to the service: an unmounted volume has no volume
// path and no volume name, an unlabelled volume has no volume name. Copies share their data.

#include <QMetaType>
#include <QString>
#include <QVariantHash>
#include <optional>

using DiskDescription = QVariantHash;

// In a namespace, because a Mac's frameworks have variables of these names, and a linker would merge
// them.
namespace disk_service {

// The media: a whole disk or a partition, present whether it is mounted or not.
inline const QString kDADiskDescriptionMediaBSDNameKey =
    QStringLiteral("DAMediaBSDName");  // QString
inline const QString kDADiskDescriptionMediaBSDUnitKey =
    QStringLiteral("DAMediaBSDUnit");                                                 // qint64
inline const QString kDADiskDescriptionMediaNameKey = QStringLiteral("DAMediaName");  // QString
inline const QString kDADiskDescriptionMediaContentKey =
    QStringLiteral("DAMediaContent");                                                 // QString
inline const QString kDADiskDescriptionMediaUUIDKey = QStringLiteral("DAMediaUUID");  // DiskUUID
inline const QString kDADiskDescriptionMediaWritableKey =
    QStringLiteral("DAMediaWritable");  // bool
inline const QString kDADiskDescriptionMediaEjectableKey =
    QStringLiteral("DAMediaEjectable");  // bool
inline const QString kDADiskDescriptionMediaIconKey =
    QStringLiteral("DAMediaIcon");  // QVariantMap, under the two keys below

// The picture for the media: a driver bundle and the name of a file among its resources.
inline const QString kMediaIconBundleKey = QStringLiteral("CFBundleIdentifier");  // QString
inline const QString kMediaIconFileKey = QStringLiteral("IOBundleResourceFile");  // QString

// The volume on the media. Kind and UUID are known from the file system's own header, name and path
// only while the volume is mounted.
inline const QString kDADiskDescriptionVolumeNameKey = QStringLiteral("DAVolumeName");  // QString
inline const QString kDADiskDescriptionVolumePathKey =
    QStringLiteral("DAVolumePath");  // QUrl, a local file
inline const QString kDADiskDescriptionVolumeKindKey = QStringLiteral("DAVolumeKind");  // QString
inline const QString kDADiskDescriptionVolumeUUIDKey = QStringLiteral("DAVolumeUUID");  // DiskUUID

// The device that carries the media.
inline const QString kDADiskDescriptionDeviceProtocolKey =
    QStringLiteral("DADeviceProtocol");  // QString
inline const QString kDADiskDescriptionDeviceInternalKey =
    QStringLiteral("DADeviceInternal");  // bool

/// The program's own key: the device node that this system's other tools use, such as
/// "/dev/nvme0n1p1". QString.
inline const QString kDiskDescriptionDeviceNodeKey = QStringLiteral("KeldraDeviceNode");

}  // namespace disk_service

using namespace disk_service;

/// A universally unique identifier as the disk service returns it.
class DiskUUID {
 public:
  /// The nil UUID, which no disk has; QVariant needs a default constructor.
  DiskUUID() : DiskUUID(QStringLiteral("00000000-0000-0000-0000-000000000000")) {}

  /// Absent unless the text is a canonical UUID of 36 characters; a FAT serial number is not one.
  static std::optional<DiskUUID> fromText(const QString &text);

  /// How the service prints the value: a prefix with an address that ends in "> ", then the UUID in
  /// capitals.
  QString description() const;

  bool operator==(const DiskUUID &) const = default;

 private:
  explicit DiskUUID(QString canonical);

  QString _canonical;
};

Q_DECLARE_METATYPE(DiskUUID)
