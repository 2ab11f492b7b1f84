#include "Platform/macos/MacDiskService.h"

#include <QFile>
#include <QUrl>
#include <cerrno>
#include <utility>

#include "Platform/macos/AdministratorMount.h"

namespace {

void setUuid(DiskDescription &description, const QString &key) {
  const auto uuid = DiskUUID::fromText(description.take(key).toString());
  if (uuid) description.insert(key, QVariant::fromValue(*uuid));
}

// The service also reports the name of a volume that is not mounted.
DiskDescription descriptionFrom(DiskArbitration::Record record) {
  const bool isMounted = record.contains(disk_service::kDADiskDescriptionVolumePathKey);
  if (!isMounted ||
      record.value(disk_service::kDADiskDescriptionVolumeNameKey).toString().isEmpty()) {
    record.remove(disk_service::kDADiskDescriptionVolumeNameKey);
  }
  setUuid(record, disk_service::kDADiskDescriptionMediaUUIDKey);
  setUuid(record, disk_service::kDADiskDescriptionVolumeUUIDKey);
  return record;
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

// The service may return the volume for the path of a folder or link on that volume.
std::optional<DiskDescription> MacDiskService::descriptionOfVolume(
    const QString &mountPoint) const {
  auto record = DiskArbitration::recordOfVolume(mountPoint);
  if (!record) return std::nullopt;
  const QUrl path = record->value(disk_service::kDADiskDescriptionVolumePathKey).toUrl();
  // Normalizes accents in the same way as the service's path.
  const QString wanted = QFile::decodeName(QFile::encodeName(mountPoint));
  if (path.toLocalFile() != wanted) return std::nullopt;
  return descriptionFrom(std::move(*record));
}

// The service reports an unknown disk as a bad argument, and a busy volume as the system's EBUSY.
DissenterStatus MacDiskService::inWordsOfTheSeam(const QString &bsdName, quint32 status) const {
  if (status == unixErrorStatus(EBUSY)) return disk_service::kDAReturnBusy;
  const bool isUnknown =
      status == disk_service::kDAReturnBadArgument && !descriptionOfMedia(bsdName);
  return isUnknown ? disk_service::kDAReturnNotFound : status;
}

void MacDiskService::mount(const QString &bsdName, const std::optional<QString> &path,
                           Completion completion) {
  const auto end = [this, bsdName, path, call = std::move(completion)](const auto &status) {
    if (!status) return call(std::nullopt);
    const DissenterStatus refusal = inWordsOfTheSeam(bsdName, *status);
    const DiskDescription disk = descriptionOfMedia(bsdName).value_or(DiskDescription());
    if (path || !mayAskAdministrator(disk, refusal)) return call(Dissenter{refusal});
    mountAsAdministrator(bsdName, refusal, _root, _prompts, call);
  };
  _arbitration.mount(bsdName, path, end);
}

void MacDiskService::unmount(const QString &bsdName, UnmountOption option, Completion completion) {
  const auto end = [this, bsdName, call = std::move(completion)](const auto &status) {
    call(status ? std::optional(Dissenter{inWordsOfTheSeam(bsdName, *status)}) : std::nullopt);
  };
  _arbitration.unmount(bsdName, option == UnmountOption::Force, end);
}
