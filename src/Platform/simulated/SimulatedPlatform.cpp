#include "Platform/simulated/SimulatedPlatform.h"

#include <QDir>
#include <QTimer>
#include <QUrl>
#include <utility>

#include "Platform/common/SystemFilesRoot.h"

using namespace Qt::StringLiterals;

namespace {

void insertText(DiskDescription &description, const QString &key, const QString &text) {
  if (!text.isEmpty()) description.insert(key, text);
}

void insertUUID(DiskDescription &description, const QString &key, const QString &text) {
  if (const auto uuid = DiskUUID::fromText(text))
    description.insert(key, QVariant::fromValue(*uuid));
}

DiskDescription describe(const SimulatedDisk &disk) {
  DiskDescription description = {
      {kDADiskDescriptionMediaBSDNameKey, disk.bsdName()},
      {kDADiskDescriptionMediaBSDUnitKey, qint64{disk.unit}},
      {kDADiskDescriptionMediaWritableKey, disk.isWritable},
      {kDADiskDescriptionMediaEjectableKey, disk.isEjectable},
      {kDADiskDescriptionDeviceInternalKey, disk.isInternal},
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
    description.insert(kDADiskDescriptionVolumePathKey, QUrl::fromLocalFile(*partition.mountPoint));
  }
  return description;
}

}  // namespace

SimulatedSystemFiles::SimulatedSystemFiles(const QString &root, QString productVersion)
    : _shipped(root), _productVersion(std::move(productVersion)) {}

bool SimulatedSystemFiles::exists(const QString &path) const {
  return _shipped.exists(path);
}

QVariantMap SimulatedSystemFiles::propertyList(const QString &path) const {
  QVariantMap dictionary = _shipped.propertyList(path);
  if (!dictionary.isEmpty()) dictionary.insert(u"ProductVersion"_s, _productVersion);
  return dictionary;
}

QImage SimulatedSystemFiles::image(const QString &path) const {
  return _shipped.image(path);
}

SimulatedPlatform::SimulatedPlatform(Machine machine, std::unique_ptr<Clock> clock)
    : _machine(std::move(machine)),
      _clock(std::move(clock)),
      _systemFiles(systemFilesRoot(), _machine.productVersion) {
  for (SimulatedDisk &disk : _machine.disks) {
    for (SimulatedPartition &partition : disk.partitions) {
      if (partition.mountPoint.has_value()) putAt(partition, *partition.mountPoint);
    }
  }
}

SimulatedPlatform::~SimulatedPlatform() = default;

std::optional<DiskDescription> SimulatedPlatform::descriptionOfMedia(const QString &bsdName) const {
  if (_machine.presence != Presence::Answering) return std::nullopt;
  for (const SimulatedDisk &disk : _machine.disks) {
    if (disk.bsdName() == bsdName) return describe(disk);
    if (!bsdName.startsWith(disk.bsdName())) continue;
    for (const SimulatedPartition &partition : disk.partitions) {
      if (disk.bsdName(partition) == bsdName) return describe(disk, partition);
    }
  }
  return std::nullopt;
}

std::optional<DiskDescription> SimulatedPlatform::descriptionOfVolume(
    const QString &mountPoint) const {
  if (_machine.presence != Presence::Answering) return std::nullopt;
  for (const SimulatedDisk &disk : _machine.disks) {
    for (const SimulatedPartition &partition : disk.partitions) {
      if (partition.mountPoint == mountPoint) return describe(disk, partition);
    }
  }
  return std::nullopt;
}

QStringList SimulatedPlatform::mediaNames() const {
  QStringList names;
  for (const SimulatedDisk &disk : _machine.disks) names += mediaNamesOnDisk(disk.bsdName());
  return names;
}

QStringList SimulatedPlatform::mediaNamesOnDisk(const QString &wholeDisk) const {
  if (_machine.presence != Presence::Answering) return {};
  for (const SimulatedDisk &disk : _machine.disks) {
    if (disk.bsdName() != wholeDisk) continue;
    QStringList names = {wholeDisk};
    for (const SimulatedPartition &partition : disk.partitions) names += disk.bsdName(partition);
    return names;
  }
  return {};
}

void SimulatedPlatform::mount(const QString &bsdName, const std::optional<QString> &path,
                              Completion completion) {
  answerLater(bsdName, [this, bsdName, path, completion = std::move(completion)] {
    completion(tryToMount(bsdName, path));
  });
}

void SimulatedPlatform::unmount(const QString &bsdName, UnmountOption option,
                                Completion completion) {
  answerLater(bsdName, [this, bsdName, option, completion = std::move(completion)] {
    completion(tryToUnmount(bsdName, option));
  });
}

std::optional<Dissenter> SimulatedPlatform::tryToMount(const QString &bsdName,
                                                       const std::optional<QString> &path) {
  if (_machine.presence != Presence::Answering) return Dissenter{kDAReturnNotReady};
  const auto [disk, partition] = find(bsdName);
  if (disk == nullptr) return Dissenter{kDAReturnNotFound};
  if (partition == nullptr || partition->volumeKind.isEmpty())
    return Dissenter{kDAReturnUnsupported};
  if (partition->mountRefusal.has_value()) return Dissenter{*partition->mountRefusal};
  if (partition->mountPoint.has_value()) return Dissenter{kDAReturnBusy};
  putAt(*partition, path.value_or(freeFolder(*partition)));
  const QString mountPoint = *partition->mountPoint;
  _workspace.post({kNSWorkspaceDidMountNotification, this, {{kNSDevicePathKey, mountPoint}}});
  return std::nullopt;
}

std::optional<Dissenter> SimulatedPlatform::tryToUnmount(const QString &bsdName,
                                                         UnmountOption option) {
  if (_machine.presence != Presence::Answering) return Dissenter{kDAReturnNotReady};
  const auto [disk, partition] = find(bsdName);
  if (disk == nullptr) return Dissenter{kDAReturnNotFound};
  if (partition == nullptr || !partition->mountPoint.has_value())
    return Dissenter{kDAReturnNotMounted};
  // Force is for volumes in use; it does not help against any other reason.
  const bool isOverruled =
      option == UnmountOption::Force && partition->unmountRefusal == kDAReturnBusy;
  if (partition->unmountRefusal.has_value() && !isOverruled) {
    return Dissenter{*partition->unmountRefusal};
  }
  const QString mountPoint = *partition->mountPoint;
  takeAway(*partition);
  _workspace.post({kNSWorkspaceDidUnmountNotification, this, {{kNSDevicePathKey, mountPoint}}});
  return std::nullopt;
}

void SimulatedPlatform::plug(const SimulatedDisk &disk) {
  _machine.disks.append(disk);
  for (SimulatedPartition &partition : _machine.disks.last().partitions) {
    if (partition.mountPoint.has_value()) putAt(partition, *partition.mountPoint);
  }
  announce(kNSWorkspaceDidMountNotification);
}

void SimulatedPlatform::pull(int unit) {
  const auto disk = std::find_if(_machine.disks.begin(), _machine.disks.end(),
                                 [unit](const SimulatedDisk &each) { return each.unit == unit; });
  if (disk == _machine.disks.end()) return;
  const SimulatedDisk pulled = *disk;
  _machine.disks.erase(disk);
  for (SimulatedPartition partition : pulled.partitions) {
    if (!partition.mountPoint.has_value()) continue;
    announce(kNSWorkspaceDidUnmountNotification, *partition.mountPoint);
    takeAway(partition);
  }
  announce(kNSWorkspaceDidUnmountNotification);
}

void SimulatedPlatform::mountFromOutside(const QString &bsdName) {
  SimulatedPartition *partition = find(bsdName).partition;
  if (partition == nullptr || partition->mountPoint.has_value()) return;
  putAt(*partition, freeFolder(*partition));
  announce(kNSWorkspaceDidMountNotification, *partition->mountPoint);
}

void SimulatedPlatform::unmountFromOutside(const QString &bsdName) {
  SimulatedPartition *partition = find(bsdName).partition;
  if (partition == nullptr || !partition->mountPoint.has_value()) return;
  announce(kNSWorkspaceDidUnmountNotification, *partition->mountPoint);
  takeAway(*partition);
}

void SimulatedPlatform::rename(const QString &bsdName, const QString &volumeName) {
  SimulatedPartition *partition = find(bsdName).partition;
  if (partition == nullptr) return;
  partition->volumeName = volumeName;
  announce(partition->mountPoint.has_value() ? kNSWorkspaceDidRenameVolumeNotification
                                             : kNSWorkspaceDidMountNotification,
           partition->mountPoint.value_or(QString()));
}

void SimulatedPlatform::setPresence(Presence presence) {
  _machine.presence = presence;
  announce(kNSWorkspaceDidMountNotification);
}

void SimulatedPlatform::setRefusals(const QString &bsdName, std::optional<DAReturn> mount,
                                    std::optional<DAReturn> unmount) {
  SimulatedPartition *partition = find(bsdName).partition;
  if (partition == nullptr) return;
  partition->mountRefusal = mount;
  partition->unmountRefusal = unmount;
}

SimulatedPlatform::Found SimulatedPlatform::find(const QString &bsdName) {
  for (SimulatedDisk &disk : _machine.disks) {
    if (disk.bsdName() == bsdName) return {&disk, nullptr};
    for (SimulatedPartition &partition : disk.partitions) {
      if (disk.bsdName(partition) == bsdName) return {&disk, &partition};
    }
  }
  return {};
}

/// A mount point without a "/" is a name in the volumes folder; the others are taken as they are.
void SimulatedPlatform::putAt(SimulatedPartition &partition, const QString &mountPoint) {
  const bool isName = !mountPoint.contains(u'/');
  partition.mountPoint = isName ? QDir(_volumes.path()).filePath(mountPoint) : mountPoint;
  if (partition.mountPoint->startsWith(_volumes.path())) QDir().mkpath(*partition.mountPoint);
}

void SimulatedPlatform::takeAway(SimulatedPartition &partition) {
  if (partition.mountPoint->startsWith(_volumes.path() + u'/')) QDir().rmdir(*partition.mountPoint);
  partition.mountPoint.reset();
}

/// The volume's name, then the name with 1, 2 and so on behind it.
QString SimulatedPlatform::freeFolder(const SimulatedPartition &partition) const {
  QString name = partition.volumeName.isEmpty() ? partition.volumeUUID : partition.volumeName;
  name.replace(u'/', u'_');
  if (name.isEmpty() || name.startsWith(u'.')) name.prepend(u"disk"_s);
  const QString base = QDir(_volumes.path()).filePath(name);
  QString folder = base;
  for (int number = 1; QDir(folder).exists(); ++number) folder = base + QString::number(number);
  return folder;
}

void SimulatedPlatform::announce(const QString &name, const QString &path) {
  const QVariantMap userInfo =
      path.isEmpty() ? QVariantMap() : QVariantMap{{kNSDevicePathKey, path}};
  QTimer::singleShot(0, &_context, [this, name, userInfo] {
    _workspace.post({name, this, userInfo});
  });
}

void SimulatedPlatform::answerLater(const QString &bsdName, std::function<void()> answer) {
  const SimulatedPartition *partition = find(bsdName).partition;
  const auto delay = partition == nullptr ? std::chrono::milliseconds(0) : partition->delay;
  QTimer::singleShot(delay, &_context, std::move(answer));
}
