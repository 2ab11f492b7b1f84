// Signals that are malformed, or from other senders.

#include "service/ServiceTest.h"

namespace {

class Signals : public ServiceTest {
 public:
  void SetUp() override { start(); }
};

}  // namespace

TEST_F(Signals, ThatAreMalformedOrOfUnknownObjectsAreIgnored) {
  const auto right = everything();
  const QVariantMap label{{"IdLabel", "Other"}};
  const std::tuple<QString, QString, QVariantList> kinds[] = {
      {kServiceRoot, "InterfacesAdded", {link(disk), label}},
      {kServiceRoot, "InterfacesRemoved", {link(disk), kBlockInterface}},
      {kServiceRoot, "InterfacesRemoved", {link("/nowhere"), QStringList{kBlockInterface}}},
      {data, "PropertiesChanged", {kBlockInterface, label}},
      {data, "PropertiesChanged", {"com.example.Other", label, QStringList()}},
      {"/nowhere", "PropertiesChanged", {kBlockInterface, label, QStringList()}}};
  for (const auto &[path, name, arguments] : kinds) {
    service.say(serviceSignal(path, name, arguments));
    settle();
    EXPECT_EQ(everything(), right) << name.toStdString();
  }
}

// Sent to the program directly, because the bus does not pass another sender's broadcasts to it.
TEST_F(Signals, OfOtherSendersAreIgnored) {
  const auto right = everything();
  const Answers waiting = mount("disk0s1");
  auto other = QDBusConnection::connectToBus(bus.address(), "other");
  const QString kBus = "org.freedesktop.DBus";
  const auto send = [&](const QString &path, const QString &interface, const QString &name,
                        const QVariantList &arguments) {
    auto message = QDBusMessage::createTargetedSignal(systemBus.connection().baseService(), path,
                                                      interface, name);
    message.setArguments(arguments);
    other.send(message);
  };
  send(kServiceRoot, "org.freedesktop.DBus.ObjectManager", "InterfacesRemoved",
       {link(disk), QStringList{kBlockInterface}});
  send("/org/freedesktop/DBus", kBus, "NameOwnerChanged",
       {kDiskServiceName, service.address(), other.baseService()});
  // When this call is answered, the bus has the other program's messages.
  other.call(QDBusMessage::createMethodCall(kBus, "/", kBus, "GetId"));
  settle();
  EXPECT_EQ(everything(), right);
  EXPECT_EQ(*waiting, QList<DissenterStatus>{});
  QDBusConnection::disconnectFromBus("other");
}
