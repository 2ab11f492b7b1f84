#pragma once

// A mirror of the disk service's object tree, so that a question costs no round trip.
//
// The tree is fetched once, asynchronously, and then follows the service's signals. When the
// service goes away it is asked for anew, which also starts it where the bus can; until the answer
// comes the last tree stands, so that a restart of the service changes nothing that anyone can see.
// A service that dies over the question again and again is asked ever more slowly and soon counts
// as absent; one that appears is fetched when it does. After a restart of the bus all of it begins
// again.

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
  /// `bus` must outlive this.
  explicit ServiceTree(MessageBus &bus);

  DiskService::Presence presence() const { return _presence; }
  const ServiceObjects &objects() const { return _objects; }
  QDBusConnection connection() const { return _bus.connection(); }
  /// The service's own address, which no successor has: what is asked of it is answered by it or,
  /// when `serviceLost` is sent, by nobody. Empty while there is none.
  QString owner() const { return _owner.value_or(QString()); }

  bool hasChanges() const { return !_changes.isEmpty(); }
  /// The paths of the objects that came, went or changed since the last call.
  QSet<QString> takeChanges() { return std::exchange(_changes, {}); }

 signals:
  /// There is something for `takeChanges`.
  void objectsChanged();
  void presenceChanged();
  /// The service told that these interfaces of an object are gone. Not sent for what a whole new
  /// tree lacks. `device` is the object's device number, 0 if it had none.
  void interfacesRemoved(const QString &path, const QStringList &interfaces, quint64 device);
  /// A file system was given another label.
  void labelChanged(quint64 device);
  /// The service that had been asked so far is gone, and with it whatever it was working on.
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
  std::optional<QString> _owner;  // nothing while the bus has not told
  ServiceObjects _objects;
  QSet<QString> _changes;
  QDBusPendingCallWatcher *_fetching = nullptr;  // answers of earlier fetches are void
  QTimer _again;
  QElapsedTimer _sinceFetch;
  std::chrono::milliseconds _delay{0};
};
