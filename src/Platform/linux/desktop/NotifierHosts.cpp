#include "Platform/linux/desktop/NotifierHosts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "Platform/linux/desktop/NotifierItem.h"

using namespace Qt::StringLiterals;

NotifierHosts::NotifierHosts(MessageBus &bus) : _bus(bus) {
  _owner.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
  _owner.addWatchedService(kNotifierWatcher);
  connect(&_owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &NotifierHosts::ask);
  connect(&_bus, &MessageBus::connected, this, &NotifierHosts::start);
  connect(&_bus, &MessageBus::missing, this, [this] { emit answered(false); });
  if (_bus.connection().isConnected()) start();
}

void NotifierHosts::start() {
  QDBusConnection bus = _bus.connection();
  _owner.setConnection(bus);
  for (const QString &change :
       {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
    bus.connect(kNotifierWatcher, kNotifierWatcherPath, kNotifierWatcher, change, this,
                SLOT(ask()));
  }
  ask();
}

void NotifierHosts::ask() {
  auto question = QDBusMessage::createMethodCall(kNotifierWatcher, kNotifierWatcherPath,
                                                 u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
  question << kNotifierWatcher << u"IsStatusNotifierHostRegistered"_s;
  question.setAutoStartService(false);
  _asking = new QDBusPendingCallWatcher(_bus.connection().asyncCall(question), this);
  connect(_asking, &QDBusPendingCallWatcher::finished, this, &NotifierHosts::takeAnswer);
}

void NotifierHosts::takeAnswer(QDBusPendingCallWatcher *call) {
  call->deleteLater();
  if (call != _asking || !_bus.connection().isConnected()) return;  // an outdated answer
  const QDBusPendingReply<QDBusVariant> reply = *call;
  // A frozen panel still exists. Asked again, because Qt would block to find out.
  if (reply.error().type() == QDBusError::NoReply) return ask();
  emit answered(!reply.isError() && reply.value().variant().toBool());
}

#include "moc_NotifierHosts.cpp"
