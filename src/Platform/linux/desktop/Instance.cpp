#include "Platform/linux/desktop/Instance.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QGuiApplication>

#include "Foundation/SystemLog.h"
#include "Platform/Desktop.h"
#include "Platform/linux/desktop/DesktopNotifications.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// The bus itself answers at once, but the other instance may be busy.
constexpr auto kPatienceWithBus = 500ms;
constexpr auto kPatienceWithProgram = 1500ms;

const QString kBus = u"org.freedesktop.DBus"_s;
const QString kApplication = u"org.freedesktop.Application"_s;

QDBusMessage questionForBus(const QString &method, const QVariantList &arguments) {
  auto question = QDBusMessage::createMethodCall(kBus, u"/org/freedesktop/DBus"_s, kBus, method);
  question.setArguments(arguments);
  return question;
}

QDBusMessage answer(const QDBusConnection &bus, const QDBusMessage &question,
                    std::chrono::milliseconds patience) {
  return bus.call(question, QDBus::Block, static_cast<int>(patience.count()));
}

}  // namespace

Instance::Instance(MessageBus &bus, const QString &serviceName)
    : _bus(bus), _serviceName(serviceName), _path(u'/' + QString(serviceName).replace(u'.', u'/')) {
  new InstanceInterface(*this);
}

bool Instance::claim() {
  bool isOnly = true;
  if (_bus.waitForConnection(kPatienceWithBus)) {
    exportObject();
    // The other instance may be exiting and release the name.
    isOnly = !isTaken() || (!activateOther() && !isTaken());
  }
  connect(&_bus, &MessageBus::connected, this, &Instance::claimAgain);
  return isOnly;
}

// Before requesting the name, so that no caller finds the name without the object.
void Instance::exportObject() {
  _bus.connection().registerObject(_path, this, QDBusConnection::ExportAdaptors);
}

// An instance that was started meanwhile keeps the name; this one gets it when that instance exits.
void Instance::claimAgain() {
  exportObject();
  _bus.connection().asyncCall(requestForName(true));
}

QDBusMessage Instance::requestForName(bool waitsInQueue) const {
  constexpr uint kDoNotQueue = 4;
  return questionForBus(u"RequestName"_s, {_serviceName, waitsInQueue ? 0 : kDoNotQueue});
}

bool Instance::isTaken() const {
  constexpr uint kTaken = 3;
  const QDBusReply<uint> reply = answer(_bus.connection(), requestForName(false), kPatienceWithBus);
  if (reply.isValid()) return reply.value() == kTaken;
  systemLog(u"the session does not tell whether Keldra runs: "_s + reply.error().message());
  return false;
}

// Whether another instance exists; one that does not answer counts.
bool Instance::activateOther() const {
  auto activate = QDBusMessage::createMethodCall(_serviceName, _path, kApplication, u"Activate"_s);
  activate.setAutoStartService(false);
  QVariantMap platformData;
  for (const char *variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
    const QString token = qEnvironmentVariable(variable);
    if (!token.isEmpty()) platformData.insert(u"activation-token"_s, token);
  }
  activate << platformData;
  const QDBusError error(answer(_bus.connection(), activate, kPatienceWithProgram));
  if (error.type() == QDBusError::ServiceUnknown) return false;
  if (error.isValid()) tellOfSilentOther();
  return true;
}

void Instance::tellOfSilentOther() const {
  const QDBusReply<uint> process =
      answer(_bus.connection(), questionForBus(u"GetConnectionUnixProcessID"_s, {_serviceName}),
             kPatienceWithBus);
  const QString text = Desktop::tr(
                           "Keldra is running already, but does not answer. End process %1 "
                           "and start Keldra again.")
                           .arg(process.value());
  systemLog(text);
  answer(_bus.connection(), notificationCall(QGuiApplication::applicationDisplayName(), text),
         kPatienceWithBus);
}

void InstanceInterface::Activate(const QVariantMap &platformData) {
  const QString token = platformData.value(u"activation-token"_s).toString();
  // A variable that is too long would prevent the start of child processes.
  constexpr qsizetype kLongest = 1000;
  // Qt reads the variable when it shows the next window.
  if (!token.isEmpty() && token.size() <= kLongest) qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
  emit _instance.activated();
}

#include "moc_Instance.cpp"
