#include "Platform/linux/MessageBus.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QSocketNotifier>
#include <QUrl>
#include <array>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kPause = 500ms;  // between two checks for a missing bus
constexpr auto kPatience = 2s;  // with a silent bus, before `missing` is sent

/// The name of the bus's socket; it begins with NUL if abstract. Empty for other kinds of
/// addresses.
QByteArray socketName(const QString &address) {
  if (!address.startsWith("unix:"_L1)) return {};
  for (const QString &part : address.sliced(5).split(u',')) {
    const auto value = QByteArray::fromPercentEncoding(QFile::encodeName(part.section(u'=', 1)));
    if (part.startsWith("path="_L1)) return value;
    if (part.startsWith("abstract="_L1)) return '\0' + value;
  }
  return {};
}

/// -1 if no process listens.
int connectSocket(const QByteArray &name) {
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  const auto size = static_cast<std::size_t>(name.size());
  if (size == 0 || size >= sizeof place.sun_path) return -1;
  std::memcpy(place.sun_path, name.constData(), size);
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + size);
  if (connect(socket, reinterpret_cast<const sockaddr *>(&place), length) == 0) return socket;
  close(socket);
  return -1;
}

/// The first message of the protocol. Any answer shows that the bus works.
bool sendGreeting(int socket) {
  const QByteArray greeting =
      '\0' + QByteArray("AUTH EXTERNAL ") + QByteArray::number(getuid()).toHex() + "\r\n";
  return send(socket, greeting.constData(), static_cast<std::size_t>(greeting.size()),
              MSG_NOSIGNAL) == greeting.size();
}

}  // namespace

QString MessageBus::systemAddress() {
  return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                              u"unix:path=/var/run/dbus/system_bus_socket"_s);
}

QString MessageBus::sessionAddress() {
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString usual =
      u"unix:path=%1/bus"_s.arg(QString::fromLatin1(QUrl::toPercentEncoding(folder, "/")));
  return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS", folder.isEmpty() ? QString() : usual);
}

bool MessageBus::isFrozen(const QString &address) {
  const int socket = connectSocket(socketName(address.section(u';', 0, 0)));
  if (socket < 0) return false;
  pollfd answer{socket, POLLIN, 0};
  const bool isSilent = sendGreeting(socket) && poll(&answer, 1, 300) == 0;
  close(socket);
  return isSilent;
}

MessageBus::MessageBus(const QString &address) : _address(address.section(u';', 0, 0)) {
  _again.setSingleShot(true);
  _silence.setSingleShot(true);
  connect(&_again, &QTimer::timeout, this, &MessageBus::greet);
  connect(&_silence, &QTimer::timeout, this, &MessageBus::missing);
  _again.start(0);
}

MessageBus::~MessageBus() {
  endGreeting();
  QDBusConnection::disconnectFromBus(_connection.name());
}

void MessageBus::greet() {
  _again.stop();
  if (_address.isEmpty()) return emit missing();
  if (!_address.startsWith("unix:"_L1)) return connectNow();
  const int socket = connectSocket(socketName(_address));
  if (socket < 0) return lookLater();
  _greeting = new QSocketNotifier(socket, QSocketNotifier::Read, this);
  connect(_greeting, &QSocketNotifier::activated, this, &MessageBus::takeAnswer);
  _silence.start(kPatience);
  if (!sendGreeting(socket)) takeAnswer();
}

void MessageBus::takeAnswer() {
  std::array<char, 64> answer{};
  const bool isAlive =
      read(static_cast<int>(_greeting->socket()), answer.data(), answer.size()) > 0;
  endGreeting();
  isAlive ? connectNow() : lookLater();
}

void MessageBus::endGreeting() {
  _silence.stop();
  if (_greeting == nullptr) return;
  _greeting->setEnabled(false);
  close(static_cast<int>(_greeting->socket()));
  std::exchange(_greeting, nullptr)->deleteLater();
}

void MessageBus::connectNow() {
  static int count = 0;
  _connection = QDBusConnection::connectToBus(_address, u"keldra-%1"_s.arg(++count));
  _connection.connect({}, {}, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                      SLOT(lose()));
  if (!_connection.isConnected()) return lookLater();
  emit connected();
}

void MessageBus::drop() {
  const QString name = std::exchange(_connection, QDBusConnection(QString())).name();
  QDBusConnection::disconnectFromBus(name);
  _again.start(kPause);
}

void MessageBus::lookLater() {
  drop();
  emit missing();
}

void MessageBus::lose() {
  drop();
  emit lost();
}

bool MessageBus::waitForConnection(std::chrono::milliseconds patience) {
  if (_connection.isConnected()) return true;
  if (_greeting == nullptr) greet();
  if (_greeting == nullptr) return _connection.isConnected();
  pollfd answer{static_cast<int>(_greeting->socket()), POLLIN, 0};
  if (poll(&answer, 1, static_cast<int>(patience.count())) > 0) takeAnswer();
  return _connection.isConnected();
}

#include "moc_MessageBus.cpp"
