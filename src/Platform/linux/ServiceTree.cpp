#include "Platform/linux/ServiceTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <algorithm>

#include "Foundation/SystemLog.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using ManagedObjects = QMap<QDBusObjectPath, InterfaceMap>;

const QString kRootPath = u"/org/freedesktop/UDisks2"_s;
const QString kObjectManager = u"org.freedesktop.DBus.ObjectManager"_s;
const QString kProperties = u"org.freedesktop.DBus.Properties"_s;
const QString kBus = u"org.freedesktop.DBus"_s;

// A service that exits within this time is crashing repeatedly.
constexpr auto kShortLife = 10s;
constexpr auto kFirstDelay = 50ms;
constexpr auto kLongestDelay = 2000ms;

// Jobs come and go with every operation and are not disks.
bool isJob(const QString &path) {
  return path.startsWith(u"/org/freedesktop/UDisks2/jobs/"_s);
}

}  // namespace

ServiceTree::ServiceTree(MessageBus &bus) : _bus(bus) {
  qDBusRegisterMetaType<InterfaceMap>();
  qDBusRegisterMetaType<ManagedObjects>();
  _again.setSingleShot(true);
  connect(&_again, &QTimer::timeout, this, &ServiceTree::fetch);
  _watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
  _watcher.addWatchedService(kDiskServiceName);
  connect(&_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString &, const QString &before, const QString &after) {
            changeOwner(before, after);
          });
  connect(&_bus, &MessageBus::connected, this, &ServiceTree::start);
  connect(&_bus, &MessageBus::lost, this, &ServiceTree::loseBus);
  connect(&_bus, &MessageBus::missing, this, [this] { becomeAbsent(u"no system bus answers"_s); });
  if (connection().isConnected()) start();
}

void ServiceTree::start() {
  followSignals();
  askForOwner();
  fetch();
}

void ServiceTree::followSignals() {
  _watcher.setConnection(connection());
  QDBusConnection bus = connection();
  bus.connect(kDiskServiceName, kRootPath, kObjectManager, u"InterfacesAdded"_s, this,
              SLOT(addInterfaces(QDBusMessage)));
  bus.connect(kDiskServiceName, kRootPath, kObjectManager, u"InterfacesRemoved"_s, this,
              SLOT(removeInterfaces(QDBusMessage)));
  bus.connect(kDiskServiceName, {}, kProperties, u"PropertiesChanged"_s, this,
              SLOT(changeProperties(QDBusMessage)));
}

// Asked before the tree, so that the owner is known when the tree comes. If the service starts or
// exits meanwhile, a signal gives the new owner, which has priority.
void ServiceTree::askForOwner() {
  auto question =
      QDBusMessage::createMethodCall(kBus, u"/org/freedesktop/DBus"_s, kBus, u"GetNameOwner"_s);
  question << kDiskServiceName;
  auto *call = new QDBusPendingCallWatcher(connection().asyncCall(question), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
    call->deleteLater();
    const QDBusPendingReply<QString> reply = *call;
    if (!_owner && reply.isValid()) _owner = reply.value();
  });
}

void ServiceTree::fetch() {
  _again.stop();
  _sinceFetch.start();
  const auto question = QDBusMessage::createMethodCall(kDiskServiceName, kRootPath, kObjectManager,
                                                       u"GetManagedObjects"_s);
  _fetching =
      new QDBusPendingCallWatcher(connection().asyncCall(question, MessageBus::kNoTimeOut), this);
  connect(_fetching, &QDBusPendingCallWatcher::finished, this, &ServiceTree::takeTree);
}

void ServiceTree::fetchAgain() {
  const bool isUnanswered = std::exchange(_fetching, nullptr) != nullptr;
  // The service exits at every start, and only this program starts it: the last tree is too old to
  // show.
  if (isUnanswered && _delay == kLongestDelay) becomeAbsent(u"the disk service dies each time"_s);
  const bool diesAgain = std::chrono::milliseconds(_sinceFetch.elapsed()) < kShortLife;
  _delay = diesAgain ? std::clamp<std::chrono::milliseconds>(_delay * 2, kFirstDelay, kLongestDelay)
                     : 0ms;
  _again.start(_delay);
}

void ServiceTree::takeTree(QDBusPendingCallWatcher *call) {
  call->deleteLater();
  if (call != _fetching) return;
  const QDBusPendingReply<ManagedObjects> reply = *call;
  if (reply.isError()) return fetchFailed(reply.error());
  _fetching = nullptr;
  const ManagedObjects tree = reply.value();
  ServiceObjects objects;
  objects.reserve(tree.size());
  for (auto entry = tree.begin(); entry != tree.end(); ++entry) {
    if (!isJob(entry.key().path())) objects[entry.key().path()].add(entry.value());
  }
  replaceTree(std::move(objects));
  setPresence(DiskService::Presence::Answering);
}

void ServiceTree::fetchFailed(const QDBusError &error) {
  // The service exited during the call and may be restarted, or it has started since the call.
  const bool hasCome = error.type() == QDBusError::ServiceUnknown && !owner().isEmpty();
  if (error.type() == QDBusError::NoReply || hasCome) return fetchAgain();
  _fetching = nullptr;
  becomeAbsent(u"no disk service: %1: %2"_s.arg(error.name(), error.message()));
}

void ServiceTree::changeOwner(const QString &before, const QString &after) {
  _owner = after;
  if (!before.isEmpty()) fetchAgain();
  if (!after.isEmpty() && _fetching == nullptr) {  // started by another program
    _delay = 0ms;
    fetch();
  }
  if (!before.isEmpty()) emit serviceLost();
}

void ServiceTree::loseBus() {
  _fetching = nullptr;
  _again.stop();
  _owner.reset();
  becomeAbsent(u"the system bus is gone"_s);
  emit serviceLost();
}

void ServiceTree::replaceTree(ServiceObjects objects) {
  const ServiceObjects before = std::exchange(_objects, std::move(objects));
  for (auto old = before.begin(); old != before.end(); ++old) {
    if (!_objects.contains(old.key())) _changes.insert(old.key());
  }
  for (auto now = _objects.begin(); now != _objects.end(); ++now) {
    const auto old = before.constFind(now.key());
    if (old == before.constEnd() || *old != *now) _changes.insert(now.key());
  }
  if (hasChanges()) emit objectsChanged();
}

void ServiceTree::setPresence(DiskService::Presence presence) {
  if (std::exchange(_presence, presence) != presence) emit presenceChanged();
}

void ServiceTree::becomeAbsent(const QString &reason) {
  if (_presence != DiskService::Presence::Absent) systemLog(reason);
  replaceTree({});
  setPresence(DiskService::Presence::Absent);
}

void ServiceTree::noteChange(const QString &path) {
  _changes.insert(path);
  emit objectsChanged();
}

void ServiceTree::addInterfaces(const QDBusMessage &message) {
  if (message.signature() != "oa{sa{sv}}"_L1) return;
  // Changes before the tree are part of it. Without a tree, they would be shown as all disks.
  if (_presence != DiskService::Presence::Answering) return;
  const QString path = message.arguments().at(0).value<QDBusObjectPath>().path();
  if (isJob(path)) return;
  _objects[path].add(qdbus_cast<InterfaceMap>(message.arguments().at(1)));
  noteChange(path);
}

void ServiceTree::removeInterfaces(const QDBusMessage &message) {
  if (message.signature() != "oas"_L1) return;
  const QString path = message.arguments().at(0).value<QDBusObjectPath>().path();
  const QStringList interfaces = message.arguments().at(1).toStringList();
  const auto object = _objects.find(path);
  if (object == _objects.end()) return;
  const quint64 device = object->device();
  object->remove(interfaces);
  if (object->isEmpty()) _objects.erase(object);
  noteChange(path);
  emit interfacesRemoved(path, interfaces, device);
}

void ServiceTree::changeProperties(const QDBusMessage &message) {
  if (message.signature() != "sa{sv}as"_L1) return;
  const auto object = _objects.find(message.path());
  if (object == _objects.end()) return;
  const auto label = [&object] { return object->text(kBlockInterface, u"IdLabel"_s); };
  const auto labelBefore = label();
  object->change(message.arguments().at(0).toString(),
                 qdbus_cast<QVariantMap>(message.arguments().at(1)),
                 message.arguments().at(2).toStringList());
  const quint64 device = object->device();
  const bool isRenamed = label() != labelBefore;
  noteChange(message.path());
  if (isRenamed) emit labelChanged(device);
}

#include "moc_ServiceTree.cpp"
