// Changes to a simulated machine from outside.

#include <QDir>
#include <algorithm>
#include <utility>

#include "Foundation/Paths.h"

#include "Platform/simulated/SimulatedPlatform.h"

using namespace Qt::StringLiterals;

namespace {

auto ofUnit(int unit) {
  return [unit](const SimulatedDisk &disk) { return disk.unit == unit; };
}

}  // namespace

void SimulatedPlatform::plug(const SimulatedDisk &disk) {
  if (find(disk.bsdName()).disk != nullptr) return;
  _pulled.removeIf(ofUnit(disk.unit));
  _machine.disks.append(disk);
  putVolumes(_machine.disks.last());
  learnPlaces();
  announce(kNSWorkspaceDidMountNotification);
}

void SimulatedPlatform::plugBack(int unit) {
  const auto disk = std::find_if(_pulled.cbegin(), _pulled.cend(), ofUnit(unit));
  if (disk != _pulled.cend()) plug(SimulatedDisk(*disk));
}

void SimulatedPlatform::pull(int unit) {
  const auto place = std::find_if(_machine.disks.begin(), _machine.disks.end(), ofUnit(unit));
  if (place == _machine.disks.end()) return;
  SimulatedDisk disk = std::move(*place);
  _machine.disks.erase(place);
  learnPlaces();
  for (SimulatedPartition &partition : disk.partitions) {
    if (!partition.mountPoint.has_value()) continue;
    announce(kNSWorkspaceDidUnmountNotification, *partition.mountPoint);
    takeAway(partition);
  }
  announce(kNSWorkspaceDidUnmountNotification);
  endRequests(kDAReturnNotFound,
              [this](const Request &request) { return find(request.bsdName).disk == nullptr; });
  _pulled.append(std::move(disk));
}

void SimulatedPlatform::mountFromOutside(const QString &bsdName) {
  SimulatedPartition *partition = find(bsdName).partition;
  if (partition == nullptr || partition->volumeKind.isEmpty() || partition->mountPoint.has_value())
    return;
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
  if (presence == _machine.presence) return;
  _machine.presence = presence;
  announce(kNSWorkspaceDidMountNotification);
  if (presence != Presence::Answering) {
    endRequests(kDAReturnNotReady, [](const Request &) { return true; });
  }
}

void SimulatedPlatform::setRefusals(const QString &bsdName, std::optional<DissenterStatus> mount,
                                    std::optional<DissenterStatus> unmount) {
  SimulatedPartition *partition = find(bsdName).partition;
  if (partition == nullptr) return;
  partition->mountRefusal = mount;
  partition->unmountRefusal = unmount;
}

void SimulatedPlatform::setDelay(const QString &bsdName, std::chrono::milliseconds delay) {
  if (SimulatedPartition *partition = find(bsdName).partition) partition->delay = delay;
}

void SimulatedPlatform::setMishap(const QString &bsdName, std::optional<Mishap> mishap) {
  if (SimulatedPartition *partition = find(bsdName).partition) partition->mishap = mishap;
}

void SimulatedPlatform::putVolumes(SimulatedDisk &disk) {
  for (SimulatedPartition &partition : disk.partitions) {
    if (partition.mountPoint.has_value()) putAt(partition, *partition.mountPoint);
  }
}

QString SimulatedPlatform::placeFor(const QString &mountPoint) const {
  if (!mountPoint.contains(u'/')) return volumesFolder() + u'/' + mountPoint;
  if (mountPoint == "/"_L1 || isOurs(mountPoint)) return mountPoint;
  return canonicalPath(_root.path() + u'/' + mountPoint);
}

void SimulatedPlatform::putAt(SimulatedPartition &partition, const QString &mountPoint) {
  partition.mountPoint = placeFor(mountPoint);
  if (isOurs(*partition.mountPoint)) QDir().mkpath(*partition.mountPoint);
}

void SimulatedPlatform::takeAway(SimulatedPartition &partition) {
  if (isOurs(*partition.mountPoint)) QDir().rmdir(*partition.mountPoint);
  partition.mountPoint.reset();
}

bool SimulatedPlatform::isOurs(const QString &path) const {
  return path.startsWith(_root.path() + u'/');
}

/// The volume's name, then the name followed by 1, 2 and so on.
QString SimulatedPlatform::freeFolder(const SimulatedPartition &partition) const {
  // A volume's name may be impossible for a folder.
  constexpr int kLongestName = 60;
  QString name = partition.volumeName.isEmpty() ? partition.volumeUUID : partition.volumeName;
  name.truncate(kLongestName);
  name.replace(u'/', u'_').replace(QChar(u'\0'), u'_');
  if (name.isEmpty() || name.startsWith(u'.')) name.prepend(u"disk"_s);
  const QString base = QDir(volumesFolder()).filePath(name);
  QString folder = base;
  for (int number = 1; QDir(folder).exists(); ++number) folder = base + QString::number(number);
  return folder;
}

void SimulatedPlatform::announce(const QString &name, const QString &path) {
  const QVariantMap userInfo =
      path.isEmpty() ? QVariantMap() : QVariantMap{{kNSDevicePathKey, path}};
  later([this, name, userInfo] { _workspace.post({name, this, userInfo}); });
}

void SimulatedPlatform::later(std::function<void()> action) {
  QMetaObject::invokeMethod(&_context, std::move(action), Qt::QueuedConnection);
}
