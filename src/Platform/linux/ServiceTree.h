#pragma once

// A mirror of the disk service's object tree, so that a question costs no round trip.
//
// The tree is fetched once, asynchronously, and then follows the service's signals. When the
// service exits, the tree is fetched again, which also restarts the service where the bus can;
// until the answer comes the last tree is kept, so that a restart of the service changes nothing
// visible. If the service exits during the fetch again and again, the delays grow and the service
// soon counts as absent. The tree of a new service is fetched at once. After a restart of the bus
// everything begins again.

#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QTimer>

#include "Platform/Platform.h"
#include "Platform/linux/MessageBus.h"
#include "Platform/linux/ServiceObject.h"

inline const QString kDiskServiceName = QStringLiteral("org.freedesktop.UDisks2");

class QDBusError;
class QDBusMessage;
class QDBusPendingCallWatcher;

class ServiceTree : public QObject {
  Q_OBJECT

 public:
  /// `bus` must outlive this object.
  explicit ServiceTree(MessageBus &bus);

  DiskService::Presence presence() const { return _presence; }
  const ServiceObjects &objects() const { return _objects; }
  QDBusConnection connection() const { return _bus.connection(); }
  /// The service's unique bus name, which a restarted service does not have. A call to it is
  /// answered by this service or, after `serviceLost`, never. Empty while there is none.
  QString owner() const { return _owner.value_or(QString()); }

  bool hasChanges() const { return !_changes.isEmpty(); }
  /// The paths of the objects that came, went or changed since the last call.
  QSet<QString> takeChanges() { return std::exchange(_changes, {}); }

 signals:
  /// `takeChanges` has something to return.
  void objectsChanged();
  void presenceChanged();
  /// The service reported that these interfaces of an object are gone. Not sent for objects that are
  /// missing in a newly fetched tree. `device` is the object's device number, 0 if it had none.
  void interfacesRemoved(const QString &path, const QStringList &interfaces, quint64 device);
  /// The label of a file system has changed.
  void labelChanged(quint64 device);
  /// The service has exited, and all pending calls with it.
  void serviceLost();

 private slots:
  void addInterfaces(const QDBusMessage &message);
  void removeInterfaces(const QDBusMessage &message);
  void changeProperties(const QDBusMessage &message);

 private:
  void start();
  void followSignals();
  void askForOwner();
  void fetch();
  void fetchAgain();
  void takeTree(QDBusPendingCallWatcher *call);
  void fetchFailed(const QDBusError &error);
  void changeOwner(const QString &before, const QString &after);
  void replaceTree(ServiceObjects objects);
  void setPresence(DiskService::Presence presence);
  void becomeAbsent(const QString &reason);
  void loseBus();
  void noteChange(const QString &path);

  MessageBus &_bus;
  QDBusServiceWatcher _watcher;
  DiskService::Presence _presence = DiskService::Presence::Asking;
  std::optional<QString> _owner;  // absent until the bus has answered
  ServiceObjects _objects;
  QSet<QString> _changes;
  QDBusPendingCallWatcher *_fetching = nullptr;  // answers of earlier fetches are ignored
  QTimer _again;
  QElapsedTimer _sinceFetch;
  std::chrono::milliseconds _delay{0};
};
