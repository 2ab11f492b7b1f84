#pragma once

// A disk service in the test's hand: it has the objects, and says the things, that the test wants,
// and answers how and when the test wants.
//
//   service.addDisk("sda", 0);
//   service.appear();
//   ... a mount is asked of the program ...
//   service.refuse(service.take("Mount"), "org.freedesktop.UDisks2.Error.DeviceBusy");

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <optional>

#include "Platform/linux/ServiceObject.h"

inline const QString kServiceRoot = QStringLiteral("/org/freedesktop/UDisks2");

QVariant link(const QString &path);

/// One of the signals of such a service, with arguments that may be wrong.
QDBusMessage serviceSignal(const QString &path, const QString &name, const QVariantList &arguments);

class MockDiskService final : public QDBusVirtualObject {
 public:
  explicit MockDiskService(QString bus);
  ~MockDiskService() override { die(); }

  void appear();
  /// As a crash does: whoever waits for an answer is told by the bus that there will be none.
  void die();
  /// Gives up the name and lives on, so that words of its may come late.
  void stepDown();
  /// Its own address on the bus. Empty while it is dead.
  QString address() const { return _connection ? _connection->baseService() : QString(); }

  // These fill the tree and say nothing of it. Each gives the path of the new object. Device
  // numbers have the major number 8.
  QString addDisk(const QString &kernelName, uint minorNumber);
  QString addPartition(const QString &disk, uint number, uint minorNumber);

  // These change the tree and tell of it.
  void add(const QString &path, const InterfaceMap &interfaces);
  void remove(const QString &path, const QStringList &interfaces);
  void remove(const QString &path) { remove(path, tree[path].keys()); }
  void change(const QString &path, const QString &interface, const QString &property,
              const QVariant &value);

  /// Sends whatever message, however wrong.
  void say(const QDBusMessage &message) { _connection->send(message); }

  /// Removes and gives the oldest unanswered call of this method. Fails the test when there is none.
  QDBusMessage take(const QString &method);
  void answer(const QDBusMessage &call, const QVariantList &values = {});
  void refuse(const QDBusMessage &call, const QString &error, const QString &text = {});
  /// With the tree as it is now.
  void answerWithTree(const QDBusMessage &call);

  QMap<QString, InterfaceMap> tree;
  bool holdsTree = false;  // whether also the question for the tree waits in `calls`
  QList<QDBusMessage> calls;

  bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
  QString introspect(const QString &) const override { return {}; }

 private:
  const QString _bus;
  std::optional<QDBusConnection> _connection;
};
