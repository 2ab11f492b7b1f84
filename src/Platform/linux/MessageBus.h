#pragma once

// A D-Bus message bus that may be missing, frozen, or restarted.
//
//   MessageBus bus(MessageBus::systemAddress());
//   connect(&bus, &MessageBus::connected, this, [&] { ask(bus.connection()); });
//
// Qt's connect blocks until the bus answers, and delays all other connections. So this class first
// sends a greeting without blocking, and lets Qt connect after the answer.

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <limits>

class QSocketNotifier;

class MessageBus final : public QObject {
  Q_OBJECT

 public:
  /// `address` has the form of D-Bus: "unix:path=/run/dbus/system_bus_socket". Empty where there is
  /// no bus. Does not block: the signals come later. For kinds other than "unix:", which no desktop
  /// uses, there is no greeting, and connecting may block.
  explicit MessageBus(const QString &address);
  ~MessageBus() override;

  /// For calls without a timeout: the user may be typing a password, or no code waits for the answer.
  static constexpr int kNoTimeOut = std::numeric_limits<int>::max();

  static QString systemAddress();
  static QString sessionAddress();

  /// Whether a process listens at this address but does not answer. Blocks, 300 ms at most.
  static bool isFrozen(const QString &address);

  /// A new connection after each `connected`; not connected while there is no bus.
  QDBusConnection connection() const { return _connection; }

  /// Blocks until the bus is connected, at most for `patience`. True if connected.
  bool waitForConnection(std::chrono::milliseconds patience);

 signals:
  void connected();
  /// The bus is gone, and with it all pending calls.
  void lost();
  /// There is no bus, or none that answers soon. The search goes on, and this signal is repeated.
  void missing();

 private slots:
  void lose();

 private:
  void greet();
  void takeAnswer();
  void endGreeting();
  void connectNow();
  void drop();
  void lookLater();

  QString _address;
  QDBusConnection _connection{QString()};
  QSocketNotifier *_greeting = nullptr;  // while the answer is awaited
  QTimer _again;
  QTimer _silence;
};
