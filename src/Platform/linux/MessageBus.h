#pragma once

// A message bus of D-Bus, which may be missing, frozen, or come back after it has gone.
//
//   MessageBus bus(MessageBus::systemAddress());
//   connect(&bus, &MessageBus::connected, this, [&] { ask(bus.connection()); });
//
// Qt connects in one step that waits for the bus, and holds all other connections up meanwhile. So
// the bus is greeted first, without waiting, and Qt connects once it has answered.

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <limits>

class QSocketNotifier;

class MessageBus final : public QObject {
  Q_OBJECT

 public:
  /// As D-Bus writes addresses: "unix:path=/run/dbus/system_bus_socket". Empty where there is no
  /// bus. Does not wait: the signals come later. Addresses of other kinds than "unix:", which no
  /// desktop uses, are connected to without a greeting, and that may wait.
  explicit MessageBus(const QString &address);
  ~MessageBus() override;

  /// For calls whose answers may take as long as they like: a person is typing a password, or nobody waits.
  static constexpr int kNoTimeOut = std::numeric_limits<int>::max();

  static QString systemAddress();
  static QString sessionAddress();

  /// Whether somebody listens at this address, and does not answer. Blocks, 300 ms at most.
  static bool isFrozen(const QString &address);

  /// Another one after each `connected`; not connected while there is none.
  QDBusConnection connection() const { return _connection; }

  /// Blocks until the bus is connected to, as long as this at most. Whether it is.
  bool waitForConnection(std::chrono::milliseconds patience);

 signals:
  void connected();
  /// The bus is gone, and with it whatever was asked there.
  void lost();
  /// There is no bus, or none that answers soon. It is looked for further, and this told again.
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
