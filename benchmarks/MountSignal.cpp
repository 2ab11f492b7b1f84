#include "MountSignal.h"

#include <QDBusConnection>
#include <stdexcept>

using namespace Qt::StringLiterals;

MountSignalListener::MountSignalListener(const QString &device) {
  const bool isConnected = QDBusConnection::systemBus().connect(
      u"org.freedesktop.UDisks2"_s,
      u"/org/freedesktop/UDisks2/block_devices/"_s + device.section(u'/', -1),
      u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s, this,
      SLOT(takeChange(QString, QVariantMap)));
  if (!isConnected) throw std::runtime_error("cannot listen to the disk service");
}

void MountSignalListener::takeChange(const QString & /*interface*/, const QVariantMap &changed) {
  if (changed.contains(u"MountPoints"_s)) emit heard(now());
}

MountSignal::MountSignal(const QString &device) : _listener(device) {
  _listener.moveToThread(&_thread);
  QObject::connect(&_listener, &MountSignalListener::heard, &_receiver, [this](Instant when) {
    if (!_heard) _heard = when;
  });
  _thread.start();
}

MountSignal::~MountSignal() {
  _thread.quit();
  _thread.wait();
}
