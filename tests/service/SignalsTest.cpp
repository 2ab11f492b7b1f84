// Signals that are malformed, or not the service's own.

#include "service/ServiceTest.h"

namespace {

class Signals : public ServiceTest {
 public:
  void SetUp() override { start(); }
};

QDBusMessage ownerChanged(const QVariantList &arguments) {
  auto message = QDBusMessage::createSignal("/org/freedesktop/DBus", "org.freedesktop.DBus",
                                            "NameOwnerChanged");
  message.setArguments(arguments);
  return message;
}

// Signals to everybody are filtered by the bus, those to one alone are not.
QDBusMessage toOneAlone(const QString &address, const QDBusMessage &signal) {
  auto message = QDBusMessage::createTargetedSignal(address, signal.path(), signal.interface(),
                                                    signal.member());
  message.setArguments(signal.arguments());
  return message;
}

}  // namespace

TEST_F(Signals, ThatAreMalformedOrOfNothingChangeNothing) {
  const auto right = everything();
  const QVariantMap label{{"IdLabel", "Other"}};
  for (const QDBusMessage &message :
       {interfacesAdded({link(disk), label}), interfacesAdded({disk, label}),
        interfacesRemoved({link(disk), kBlockInterface}),
        interfacesRemoved({link("/nowhere"), QStringList{kBlockInterface}}),
        propertiesChanged(data, {kBlockInterface, label}),
        propertiesChanged(data, {"com.example.Other", label, QStringList()}),
        propertiesChanged("/nowhere", {kBlockInterface, label, QStringList()})}) {
    service.say(message);
    settle();
    EXPECT_EQ(everything(), right) << qPrintable(QDebug::toString(message));
  }
}

TEST_F(Signals, OfOthersAreNotHeeded) {
  const auto right = everything();
  const Answers waiting = mount("disk0s1");
  auto other = QDBusConnection::connectToBus(bus.address(), "other");
  for (const QDBusMessage &signal :
       {interfacesRemoved({link(disk), QStringList{kBlockInterface}}),
        ownerChanged({kDiskServiceName, service.address(), other.baseService()})}) {
    other.send(signal);
    other.send(toOneAlone(systemBus.connection().baseService(), signal));
  }
  // What the other one has sent is at the bus when this is answered.
  other.call(
      QDBusMessage::createMethodCall("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetId"));
  settle();
  EXPECT_EQ(everything(), right);
  EXPECT_EQ(*waiting, QList<DissenterStatus>{});
  QDBusConnection::disconnectFromBus("other");
}
