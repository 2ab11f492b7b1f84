#include "Platform/simulated/SimulatedPlatform.h"

#include <QDir>
#include <QTimer>
#include <utility>

#include "Platform/common/MediaIcon.h"
#include "Platform/simulated/Describe.h"

using namespace Qt::StringLiterals;

SimulatedPlatform::SimulatedPlatform(Machine machine, std::unique_ptr<Clock> clock,
                                     std::chrono::milliseconds moment)
    : _machine(std::move(machine)),
      _clock(std::move(clock)),
      _systemFiles(_machine.productVersion),
      _runLoop(moment) {
  QDir().mkpath(volumesFolder());
  for (SimulatedDisk &disk : _machine.disks) putVolumes(disk);
  learnPlaces();
  if (!_machine.answersAfter.has_value()) return;
  QTimer::singleShot(*_machine.answersAfter, &_context, [this] {
    if (_machine.presence == Presence::Asking) setPresence(Presence::Answering);
  });
}

SimulatedPlatform::~SimulatedPlatform() = default;

std::optional<DiskDescription> SimulatedPlatform::descriptionOfMedia(const QString &bsdName) const {
  const auto place = _places.constFind(bsdName);
  if (_machine.presence != Presence::Answering || place == _places.cend()) return std::nullopt;
  const SimulatedDisk &disk = _machine.disks[place->disk];
  if (place->partition == kWholeDisk) return describe(disk);
  return describe(disk, disk.partitions[place->partition]);
}

std::optional<DiskDescription> SimulatedPlatform::descriptionOfVolume(
    const QString &mountPoint) const {
  const auto place = placeOfVolume(mountPoint);
  if (_machine.presence != Presence::Answering || !place) return std::nullopt;
  const SimulatedDisk &disk = _machine.disks[place->disk];
  return describe(disk, disk.partitions[place->partition]);
}

std::optional<quint32> SimulatedPlatform::fileSystemSubtype(const QString &mountPoint) const {
  const auto place = placeOfVolume(mountPoint);
  if (!place) return std::nullopt;
  return _machine.disks[place->disk].partitions[place->partition].volumeSubtype;
}

std::optional<quint32> SimulatedPlatform::physicalBlockSize(const QString &bsdName) const {
  const SimulatedDisk *disk = wholeDisk(bsdName);
  return disk == nullptr ? std::nullopt : disk->physicalBlockSize;
}

std::optional<quint32> SimulatedPlatform::logicalBlockSize(const QString &bsdName) const {
  const SimulatedDisk *disk = wholeDisk(bsdName);
  return disk == nullptr ? std::nullopt : disk->logicalBlockSize;
}

void SimulatedVolumeFiles::findProcessesUsing(const QString &mountPoint,
                                              std::function<void(const QStringList &)> answer) {
  for (const SimulatedDisk &disk : _machine.disks) {
    for (const SimulatedPartition &partition : disk.partitions) {
      if (partition.mountPoint == mountPoint) return answer(partition.usedBy);
    }
  }
  answer({});
}

QStringList SimulatedPlatform::mediaNames() const {
  QStringList names;
  for (const SimulatedDisk &disk : _machine.disks) names += mediaNamesOnDisk(disk.bsdName());
  return names;
}

QStringList SimulatedPlatform::mediaNamesOnDisk(const QString &wholeDisk) const {
  const auto place = _places.constFind(wholeDisk);
  if (_machine.presence != Presence::Answering || place == _places.cend()) return {};
  if (place->partition != kWholeDisk) return {};
  const SimulatedDisk &disk = _machine.disks[place->disk];
  QStringList names = {wholeDisk};
  for (const SimulatedPartition &partition : disk.partitions) names += disk.bsdName(partition);
  return names;
}

std::optional<SimulatedPlatform::Place> SimulatedPlatform::placeOfVolume(
    const QString &mountPoint) const {
  for (qsizetype disk = 0; disk < _machine.disks.size(); ++disk) {
    const auto &partitions = _machine.disks[disk].partitions;
    for (qsizetype partition = 0; partition < partitions.size(); ++partition) {
      if (partitions[partition].mountPoint == mountPoint) return Place{disk, partition};
    }
  }
  return std::nullopt;
}

const SimulatedDisk *SimulatedPlatform::wholeDisk(const QString &bsdName) const {
  const auto place = _places.constFind(bsdName);
  if (place == _places.cend() || place->partition != kWholeDisk) return nullptr;
  return &_machine.disks[place->disk];
}

SimulatedPlatform::Found SimulatedPlatform::find(const QString &bsdName) {
  const auto place = _places.constFind(bsdName);
  if (place == _places.cend()) return {};
  SimulatedDisk &disk = _machine.disks[place->disk];
  if (place->partition == kWholeDisk) return {&disk, nullptr};
  return {&disk, &disk.partitions[place->partition]};
}

void SimulatedPlatform::learnPlaces() {
  _places.clear();
  for (qsizetype disk = 0; disk < _machine.disks.size(); ++disk) {
    const SimulatedDisk &each = _machine.disks[disk];
    _places.insert(each.bsdName(), {disk, kWholeDisk});
    for (qsizetype partition = 0; partition < each.partitions.size(); ++partition) {
      _places.insert(each.bsdName(each.partitions[partition]), {disk, partition});
    }
  }
}
