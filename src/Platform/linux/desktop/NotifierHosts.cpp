#include "Platform/linux/desktop/NotifierHosts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "Platform/linux/desktop/NotifierItem.h"

using namespace Qt::StringLiterals;

NotifierHosts::NotifierHosts(const QDBusConnection &bus)
    : _bus(bus), _owner(kNotifierWatcher, _bus, QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&_owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &NotifierHosts::ask);
  for (const QString &change :
       {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
    _bus.connect(kNotifierWatcher, kNotifierWatcherPath, kNotifierWatcher, change, this,
                 SLOT(ask()));
  }
  ask();
}

void NotifierHosts::ask() {
  auto question = QDBusMessage::createMethodCall(kNotifierWatcher, kNotifierWatcherPath,
                                                 u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
  question << kNotifierWatcher << u"IsStatusNotifierHostRegistered"_s;
  question.setAutoStartService(false);
  _asking = new QDBusPendingCallWatcher(_bus.asyncCall(question), this);
  connect(_asking, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
    call->deleteLater();
    if (call != _asking) return;  // things have changed since
    const QDBusPendingReply<QDBusVariant> reply = *call;
    emit answered(!reply.isError() && reply.value().variant().toBool());
  });
}
