#include "Platform/macos/MacDiskService.h"

#include <QFile>
#include <QUrl>
#include <QUuid>
#include <utility>

namespace {

void setUuid(DiskDescription &description, const QString &key) {
  const QVariant value = description.take(key);
  const auto uuid = DiskUUID::fromText(value.toUuid().toString(QUuid::WithoutBraces));
  if (uuid) description.insert(key, QVariant::fromValue(*uuid));
}

// The service also knows the name of a volume that is not mounted.
DiskDescription descriptionFrom(DiskArbitration::Record record) {
  const bool isMounted = record.contains(kDADiskDescriptionVolumePathKey);
  if (!isMounted || record.value(kDADiskDescriptionVolumeNameKey).toString().isEmpty()) {
    record.remove(kDADiskDescriptionVolumeNameKey);
  }
  setUuid(record, kDADiskDescriptionMediaUUIDKey);
  setUuid(record, kDADiskDescriptionVolumeUUIDKey);
  return record;
}

DiskArbitration::Completion inWordsOfTheSeam(DiskService::Completion completion) {
  return [call = std::move(completion)](const std::optional<quint32> &status) {
    call(status ? std::optional(Dissenter{*status}) : std::nullopt);
  };
}

}  // namespace

DiskService::Presence MacDiskService::presence() const {
  return DiskArbitration::answers() ? Presence::Answering : Presence::Absent;
}

QString MacDiskService::name() const {
  return QStringLiteral("DiskArbitration");
}

std::optional<DiskDescription> MacDiskService::descriptionOfMedia(const QString &bsdName) const {
  auto record = DiskArbitration::recordOfMedia(bsdName);
  if (!record) return std::nullopt;
  return descriptionFrom(std::move(*record));
}

// The service may take the path of a folder or link on a volume for the volume's.
std::optional<DiskDescription> MacDiskService::descriptionOfVolume(
    const QString &mountPoint) const {
  auto record = DiskArbitration::recordOfVolume(mountPoint);
  if (!record) return std::nullopt;
  const QUrl path = record->value(kDADiskDescriptionVolumePathKey).toUrl();
  // In one of the forms that accents have, as the path came through the file system's.
  const QString wanted = QFile::decodeName(QFile::encodeName(mountPoint));
  if (path.toLocalFile() != wanted) return std::nullopt;
  return descriptionFrom(std::move(*record));
}

void MacDiskService::mount(const QString &bsdName, const std::optional<QString> &path,
                           Completion completion) {
  _arbitration.mount(bsdName, path, inWordsOfTheSeam(std::move(completion)));
}

void MacDiskService::unmount(const QString &bsdName, UnmountOption option, Completion completion) {
  _arbitration.unmount(bsdName, option == UnmountOption::Force,
                       inWordsOfTheSeam(std::move(completion)));
}
