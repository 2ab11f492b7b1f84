#pragma once

// Whether the desktop has a panel that speaks the StatusNotifierItem protocol, now and later.

#include <QDBusServiceWatcher>
#include <QObject>

#include "Platform/linux/MessageBus.h"

class QDBusPendingCallWatcher;

class NotifierHosts : public QObject {
  Q_OBJECT

 public:
  /// The answer comes later. `bus` must outlive this object.
  explicit NotifierHosts(MessageBus &bus);

 signals:
  /// Sent for each answer, even an unchanged one, because another panel may have taken over.
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
