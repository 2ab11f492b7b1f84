#include "Platform/linux/LinuxDiskService.h"

#include "Foundation/NotificationCenter.h"
#include "Foundation/Paths.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// The announcements of a disk and its partitions, and of a partition table read again, come in
// bursts.
constexpr auto kWave = 3ms;

DiskDescription mountedAt(const Medium &medium, const QString &mountPoint) {
  DiskDescription description = medium.description;
  description.insert(kDADiskDescriptionVolumePathKey, urlOfPath(mountPoint));
  if (!medium.label.isEmpty()) {
    description.insert(kDADiskDescriptionVolumeNameKey, medium.label);
  }
  return description;
}

}  // namespace

LinuxDiskService::LinuxDiskService(MessageBus &bus, UnitNumbers units, const QString &mountTable,
                                   NotificationCenter &workspace)
    : _workspace(workspace),
      _tree(bus),
      _requests(_tree, _helpers),
      _mounts(mountTable),
      _media(std::move(units)) {
  refresh();
  _events.accept(_mounts, _media);
  _helpers.setLateAnswerHandler([this] {
    _workspace.post({kNSWorkspaceDidMountNotification, this});
  });
  _requests.setUnwrittenHandler([this](const QString &mountPoint) {
    _workspace.post({kVolumeUnwrittenNotification, this, {{kNSDevicePathKey, mountPoint}}});
  });
  _mounts.setChangeHandler([this] { postNews(); });
  _soon.setSingleShot(true);
  _soon.setInterval(kWave);
  connect(&_soon, &QTimer::timeout, this, &LinuxDiskService::postChange);
  connect(&_tree, &ServiceTree::objectsChanged, this, [this] {
    if (!_soon.isActive()) _soon.start();
  });
  connect(&_tree, &ServiceTree::presenceChanged, this, &LinuxDiskService::changePresence);
  connect(&_tree, &ServiceTree::labelChanged, this, &LinuxDiskService::postRename);
  connect(&_tree, &ServiceTree::interfacesRemoved, this, &LinuxDiskService::removeInterfaces);
  connect(&_tree, &ServiceTree::serviceLost, &_requests, &Requests::failAll);
}

void LinuxDiskService::refresh() const {
  bool differs = _mounts.refresh();
  if (_tree.hasChanges() && _media.update(_tree.objects(), _tree.takeChanges())) {
    differs = true;
    _isChangeUntold = true;
  }
  if (!differs) return;
  _mounted.clear();
  for (const Mount &mount : _mounts.mounts()) {
    const Medium *medium = _media.onDevice(mount.device);
    if (medium == nullptr) continue;
    _mounted.insert(medium->device, mountedAt(*medium, *_mounts.mountPointOf(mount.device)));
  }
}

QString LinuxDiskService::name() const {
  const ServiceObject manager = _tree.objects().value(u"/org/freedesktop/UDisks2/Manager"_s);
  const auto version = manager.text(u"org.freedesktop.UDisks2.Manager"_s, u"Version"_s);
  return (u"UDisks2 "_s + version.value_or(QString())).trimmed();
}

std::optional<DiskDescription> LinuxDiskService::describe(const Medium *medium) const {
  if (medium == nullptr) return std::nullopt;
  return _mounted.value(medium->device, medium->description);
}

std::optional<DiskDescription> LinuxDiskService::descriptionOfMedia(const QString &bsdName) const {
  refresh();
  return describe(_media.named(bsdName));
}

std::optional<DiskDescription> LinuxDiskService::descriptionOfVolume(
    const QString &mountPoint) const {
  refresh();
  return describe(_media.onDevice(_mounts.deviceAt(mountPoint)));
}

QString LinuxDiskService::fileSystemVersionAt(const QString &mountPoint) const {
  refresh();
  const Medium *medium = _media.onDevice(_mounts.deviceAt(mountPoint));
  return medium == nullptr ? QString() : medium->version;
}

QStringList LinuxDiskService::mediaNames() const {
  refresh();
  return _media.names();
}

QStringList LinuxDiskService::mediaNamesOnDisk(const QString &wholeDisk) const {
  refresh();
  return _media.namesOnDisk(wholeDisk);
}

std::optional<Dissenter> LinuxDiskService::refusalOf(const Medium *medium) const {
  const bool isReady = presence() == Presence::Answering && !_tree.owner().isEmpty();
  if (!isReady) return Dissenter{kDAReturnNotReady};
  if (medium == nullptr) return Dissenter{kDAReturnNotFound};
  return std::nullopt;
}

// When the wait for a mount is over, the list must contain the volume.
DiskService::Completion LinuxDiskService::afterTheNews(Completion completion) {
  return [this, call = std::move(completion)](const std::optional<Dissenter> &dissenter) {
    postNews();
    call(dissenter);
  };
}

void LinuxDiskService::mount(const QString &bsdName, const std::optional<QString> &path,
                             Completion completion) {
  refresh();
  const Medium *medium = _media.named(bsdName);
  if (const auto refusal = refusalOf(medium)) return completion(refusal);
  // The service always chooses the mount point itself.
  if (path) return completion(Dissenter{kDAReturnUnsupported});
  _requests.mount(*medium, afterTheNews(std::move(completion)));
}

void LinuxDiskService::unmount(const QString &bsdName, UnmountOption option,
                               Completion completion) {
  refresh();
  const Medium *medium = _media.named(bsdName);
  if (const auto refusal = refusalOf(medium)) return completion(refusal);
  const auto mountPoint = _mounts.mountPointOf(medium->device);
  if (option == UnmountOption::Force && mountPoint) {
    _requests.forceUnmount(*medium, _mounts.holding(*mountPoint),
                           afterTheNews(std::move(completion)));
  } else {
    _requests.unmount(*medium, afterTheNews(std::move(completion)));
  }
}

void LinuxDiskService::post(const QList<VolumeEvent> &events) {
  for (const VolumeEvent &event : events) {
    _workspace.post({event.name, this, {{kNSDevicePathKey, event.mountPoint}}});
  }
}

QByteArray LinuxDiskService::askVolume(const QString &path, const QByteArray &question) {
  refresh();
  return _helpers.answer(_mounts.holding(path), question).value_or(QByteArray());
}

void LinuxDiskService::postNews() {
  refresh();
  _helpers.forgetVanished(_mounts);
  post(_events.news(_mounts, _media));
}

void LinuxDiskService::postChange() {
  postNews();
  if (!std::exchange(_isChangeUntold, false)) return;
  _workspace.post({kNSWorkspaceDidMountNotification, this});
}

// When the service scans its disks again, thousands of labels may change. Only a mounted volume's
// change gets its own notification.
void LinuxDiskService::postRename(quint64 device) {
  if (!_events.hasToldOf(device)) return;
  postNews();
  const auto mountPoint = _mounts.mountPointOf(device);
  if (!mountPoint || _media.onDevice(device) == nullptr) return;
  post({{kNSWorkspaceDidRenameVolumeNotification, *mountPoint}});
}

// Volumes that were mounted before the service could be asked are in the list; they are not news.
void LinuxDiskService::changePresence() {
  refresh();
  if (presence() == Presence::Answering) _events.accept(_mounts, _media);
  _isChangeUntold = true;
  _soon.start();
}

// A disk may have a thousand partitions. Those without a request or an announced mount are left to
// the one notification for all changes.
void LinuxDiskService::removeInterfaces(const QString &path, const QStringList &interfaces,
                                        quint64 device) {
  const bool isPulled = interfaces.contains(kBlockInterface);
  if (!isPulled && !interfaces.contains(kFilesystemInterface)) return;
  if (!_requests.isWaitingFor(path) && !_events.hasToldOf(device)) return;
  postNews();
  if (isPulled) post(_events.pulled(device));
  _requests.failVanished(path, isPulled, _mounts.mountPointOf(device).has_value());
}
