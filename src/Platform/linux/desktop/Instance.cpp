#include "Platform/linux/desktop/Instance.h"

#include <QDBusMessage>
#include <QDBusReply>

#include "Foundation/SystemLog.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatienceInMilliseconds = 2500;  // for each question
const QString kBus = u"org.freedesktop.DBus"_s;
const QString kApplication = u"org.freedesktop.Application"_s;

}  // namespace

Instance::Instance(const QDBusConnection &bus, const QString &serviceName)
    : _bus(bus), _serviceName(serviceName), _path(u'/' + QString(serviceName).replace(u'.', u'/')) {
  new InstanceInterface(*this);
}

bool Instance::claim() {
  if (!_bus.isConnected()) return true;
  // Before the name is ours, so that nobody finds it without the object.
  _bus.registerObject(_path, this, QDBusConnection::ExportAdaptors);
  // The other one may be ending just now, and leave us the name.
  return !isTaken() || (!activateOther() && !isTaken());
}

bool Instance::isTaken() const {
  auto request =
      QDBusMessage::createMethodCall(kBus, u"/org/freedesktop/DBus"_s, kBus, u"RequestName"_s);
  constexpr uint kDoNotQueue = 4;
  constexpr uint kTaken = 3;
  request << _serviceName << kDoNotQueue;
  const QDBusReply<uint> answer = _bus.call(request, QDBus::Block, kPatienceInMilliseconds);
  if (answer.isValid()) return answer.value() == kTaken;
  systemLog(u"the session does not tell whether Keldra runs: "_s + answer.error().message());
  return false;
}

// Whether there is another one; one that does not answer is there all the same.
bool Instance::activateOther() const {
  auto activate = QDBusMessage::createMethodCall(_serviceName, _path, kApplication, u"Activate"_s);
  activate.setAutoStartService(false);
  QVariantMap platformData;
  for (const char *variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
    const QString token = qEnvironmentVariable(variable);
    if (!token.isEmpty()) platformData.insert(u"activation-token"_s, token);
  }
  activate << platformData;
  const QDBusError error = _bus.call(activate, QDBus::Block, kPatienceInMilliseconds);
  if (error.type() == QDBusError::ServiceUnknown) return false;
  if (error.isValid()) systemLog(u"Keldra runs, but does not answer: "_s + error.message());
  return true;
}

void InstanceInterface::Activate(const QVariantMap &platformData) {
  const QString token = platformData.value(u"activation-token"_s).toString();
  // The window that is shown next finds it there.
  if (!token.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
  emit _instance.activated();
}
