#pragma once

// Whether the desktop has a panel that speaks the StatusNotifierItem protocol, now and from now on.

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

class QDBusPendingCallWatcher;

class NotifierHosts : public QObject {
  Q_OBJECT

 public:
  /// Asks at once and answers later.
  explicit NotifierHosts(const QDBusConnection &bus);

 signals:
  /// What is so now; also when it is so again, because another panel has taken over.
  void answered(bool present);

 private slots:
  void ask();

 private:
  QDBusConnection _bus;
  QDBusServiceWatcher _owner;
  QDBusPendingCallWatcher *_asking = nullptr;  // the last question
};
