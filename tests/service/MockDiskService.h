#pragma once

// A disk service that the test controls: its objects, its signals, and how and when it answers.
//
//   service.addDisk("sda", 0);
//   service.appear();
//   ... the program requests a mount ...
//   service.refuse(service.take("Mount"), "org.freedesktop.UDisks2.Error.DeviceBusy");

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <optional>

#include "Platform/linux/ServiceObject.h"

inline const QString kServiceRoot = QStringLiteral("/org/freedesktop/UDisks2");

QVariant link(const QString &path);

/// A signal of such a service, with arguments that may be wrong.
QDBusMessage serviceSignal(const QString &path, const QString &name, const QVariantList &arguments);

class MockDiskService final : public QDBusVirtualObject {
 public:
  explicit MockDiskService(QString bus);
  ~MockDiskService() override { die(); }

  void appear();
  /// Like a crash: the bus reports to callers that there will be no answer.
  void die();
  /// Gives up the name but stays on the bus, so that late messages are possible.
  void stepDown();
  /// Its unique name on the bus. Empty while it is not running.
  QString address() const { return _connection ? _connection->baseService() : QString(); }

  // These add to the tree without a signal. Each returns the path of the new object. Device numbers
  // have the major number 8.
  QString addDisk(const QString &kernelName, uint minorNumber);
  QString addPartition(const QString &disk, uint number, uint minorNumber);

  // These change the tree and send signals.
  void add(const QString &path, const InterfaceMap &interfaces);
  void remove(const QString &path, const QStringList &interfaces);
  void remove(const QString &path) { remove(path, tree[path].keys()); }
  void change(const QString &path, const QString &interface, const QString &property,
              const QVariant &value);

  /// Sends any message, even an invalid one.
  void say(const QDBusMessage &message) { _connection->send(message); }

  /// Removes and returns the oldest unanswered call of this method. Fails the test if there is none.
  QDBusMessage take(const QString &method);
  void answer(const QDBusMessage &call, const QVariantList &values = {});
  void refuse(const QDBusMessage &call, const QString &error, const QString &text = {});
  /// Answers with the present tree.
  void answerWithTree(const QDBusMessage &call);

  QMap<QString, InterfaceMap> tree;
  bool holdsTree = false;  // whether requests for the tree also wait in `calls`
  QList<QDBusMessage> calls;

  bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
  QString introspect(const QString &) const override { return {}; }

 private:
  const QString _bus;
  std::optional<QDBusConnection> _connection;
};
