#include "load/Model.h"

#include <algorithm>
#include <utility>

namespace {

const QString kESP = QStringLiteral("EFI System Partition");

QString nameOf(const SimulatedDisk &disk, const SimulatedPartition &partition) {
  return QStringLiteral("disk%1s%2").arg(disk.unit).arg(partition.slice);
}

/// Absent when there is none to speak of.
std::optional<QString> mediaName(const QString &media) {
  if (media.isEmpty()) return std::nullopt;
  return media == "(null)" ? "N/A" : media;
}

std::optional<QString> nameAmongSiblings(const SimulatedPartition &partition) {
  const QString &volume = partition.volumeName;
  const bool counts = partition.mountPoint && volume != "" && volume != "(null)" && volume != "N/A";
  return counts ? volume : mediaName(partition.media);
}

QString siblingLine(const SimulatedDisk &disk) {
  QList<std::optional<QString>> names = {mediaName(disk.media)};
  for (const SimulatedPartition &partition : disk.partitions) names << nameAmongSiblings(partition);
  QString line;
  for (const auto &name : names) {
    if (!name) continue;
    if (line.isEmpty()) {
      line = *name + ":";
    } else {
      line += (line.endsWith(":") ? " " : ", ") + *name;
    }
  }
  return line;
}

QString titleOf(const SimulatedPartition &partition) {
  if (partition.media == kESP) return "ESP";
  if (partition.media == "Recovery HD" || !partition.mountPoint) {
    return mediaName(partition.media).value_or("(null)");
  }
  return *partition.mountPoint == "/" ? "/" : partition.mountPoint->section('/', -1);
}

}  // namespace

void Model::plug(SimulatedDisk disk) {
  const auto isIt = [&](const SimulatedDisk &each) { return each.unit == disk.unit; };
  if (std::any_of(_disks.cbegin(), _disks.cend(), isIt)) return;
  _pulled.removeIf(isIt);
  for (SimulatedPartition &partition : disk.partitions) {
    if (partition.mountPoint && *partition.mountPoint != "/")
      partition.mountPoint = _volumesFolder + "/" + *partition.mountPoint;
  }
  _disks << disk;
}

void Model::pull(int unit) {
  for (qsizetype index = 0; index < _disks.size(); ++index) {
    if (_disks[index].unit != unit) continue;
    SimulatedDisk disk = _disks.takeAt(index);
    for (SimulatedPartition &partition : disk.partitions) partition.mountPoint.reset();
    _pulled << disk;
    return;
  }
}

void Model::plugBack(int unit) {
  const QVector<SimulatedDisk> pulled = _pulled;
  for (const SimulatedDisk &disk : pulled) {
    if (disk.unit == unit) plug(disk);
  }
}

void Model::mountFromOutside(const QString &bsdName) {
  SimulatedPartition *partition = find(bsdName);
  if (!partition || partition->volumeKind.isEmpty() || partition->mountPoint) return;
  partition->mountPoint = freeFolder(*partition);
}

void Model::unmountFromOutside(const QString &bsdName) {
  if (auto *partition = find(bsdName)) partition->mountPoint.reset();
}

void Model::rename(const QString &bsdName, const QString &volumeName) {
  if (auto *partition = find(bsdName)) partition->volumeName = volumeName;
}

void Model::setRefusals(const QString &bsdName, std::optional<DissenterStatus> mount,
                        std::optional<DissenterStatus> unmount) {
  auto *partition = find(bsdName);
  if (!partition) return;
  partition->mountRefusal = mount;
  partition->unmountRefusal = unmount;
}

void Model::setDelay(const QString &bsdName, std::chrono::milliseconds delay) {
  if (auto *partition = find(bsdName)) partition->delay = delay;
}

void Model::setMishap(const QString &bsdName, std::optional<Mishap> mishap) {
  if (auto *partition = find(bsdName)) partition->mishap = mishap;
}

Model::Outcome Model::clickMount(const QString &bsdName,
                                 const std::function<void(Model &)> &meanwhile) {
  const int unit = bsdName.mid(4).section('s', 0, 0).toInt();
  SimulatedPartition *partition = find(bsdName);
  if (partition->mountPoint == "/") return Outcome::Nothing;
  const bool mounts = !partition->mountPoint;
  const std::optional<Mishap> mishap = std::exchange(partition->mishap, std::nullopt);
  if (mishap == Mishap::DiskVanishesBefore || mishap == Mishap::DiskVanishesDuring) pull(unit);
  if (mishap == Mishap::ServiceDies) setPresence(Presence::Absent);
  meanwhile(*this);

  partition = find(bsdName);
  if (_presence != Presence::Answering) return Outcome::ServiceLost;
  if (!partition) return Outcome::DiskVanished;
  const Outcome outcome = answer(*partition, mounts);
  if (mishap == Mishap::DiskVanishesAfter) pull(unit);
  return outcome;
}

Model::Outcome Model::answer(SimulatedPartition &partition, bool mounts) const {
  if (mounts) {
    if (partition.volumeKind.isEmpty() || partition.mountRefusal || partition.mountPoint)
      return Outcome::Refused;
    partition.mountPoint = freeFolder(partition);
    return Outcome::Mounted;
  }
  const bool isForced = _force && partition.unmountRefusal == kDAReturnBusy;
  if (!partition.mountPoint || (partition.unmountRefusal && !isForced)) return Outcome::Refused;
  partition.mountPoint.reset();
  return Outcome::Unmounted;
}

std::optional<QString> Model::folderToOpen(const QString &bsdName) const {
  const auto &mountPoint = partition(bsdName)->mountPoint;
  if (!mountPoint) return std::nullopt;
  // A path with the word in it is cut there.
  return mountPoint->left(mountPoint->indexOf("open "));
}

QMap<QString, ModelRow> Model::rows() const {
  QMap<QString, ModelRow> rows;
  if (_presence != Presence::Answering) return rows;
  for (const SimulatedDisk &disk : _disks) {
    for (const SimulatedPartition &each : disk.partitions) {
      if (_showAll || each.media == kESP) rows.insert(nameOf(disk, each), rowOf(disk, each));
    }
  }
  return rows;
}

ModelRow Model::rowOf(const SimulatedDisk &disk, const SimulatedPartition &partition) const {
  const QString name = nameOf(disk, partition);
  const QString parent = name.left(name.lastIndexOf('s'));
  const bool isMounted = partition.mountPoint.has_value();
  return {titleOf(partition) + " on " + name + "\nparent of " + parent + ",\n" + siblingLine(disk),
          (isMounted ? "umount " : "mount ") + name, partition.mountPoint != "/",
          "open " + partition.mountPoint.value_or("(null)"), isMounted};
}

const SimulatedPartition *Model::partition(const QString &bsdName) const {
  for (const SimulatedDisk &disk : _disks) {
    for (const SimulatedPartition &each : disk.partitions) {
      if (nameOf(disk, each) == bsdName) return &each;
    }
  }
  return nullptr;
}

SimulatedPartition *Model::find(const QString &bsdName) {
  return const_cast<SimulatedPartition *>(partition(bsdName));
}

/// The volume's name, with a number behind it where another volume has that folder.
QString Model::freeFolder(const SimulatedPartition &partition) const {
  QStringList taken;
  for (const SimulatedDisk &disk : _disks) {
    for (const SimulatedPartition &each : disk.partitions)
      taken << each.mountPoint.value_or(QString());
  }
  QString name = partition.volumeName.isEmpty() ? "disk" : partition.volumeName;
  const QString base = _volumesFolder + "/" + name.replace('/', '_');
  QString folder = base;
  for (int number = 1; taken.contains(folder); ++number) folder = base + QString::number(number);
  return folder;
}
