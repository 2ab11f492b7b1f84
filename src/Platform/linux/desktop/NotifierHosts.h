#pragma once

// Whether the desktop has a panel that speaks the StatusNotifierItem protocol, now and from now on.

#include <QDBusServiceWatcher>
#include <QObject>

#include "Platform/linux/MessageBus.h"

class QDBusPendingCallWatcher;

class NotifierHosts : public QObject {
  Q_OBJECT

 public:
  /// Answers later. `bus` must outlive this.
  explicit NotifierHosts(MessageBus &bus);

 signals:
  /// What is so now; also when it is so again, because another panel has taken over.
  void answered(bool present);

 private slots:
  void ask();

 private:
  void start();
  void takeAnswer(QDBusPendingCallWatcher *call);

  MessageBus &_bus;
  QDBusServiceWatcher _owner;
  QDBusPendingCallWatcher *_asking = nullptr;  // the last question
};
