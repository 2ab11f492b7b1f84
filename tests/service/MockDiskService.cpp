#include "service/MockDiskService.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <algorithm>

#include "Platform/linux/ServiceTree.h"

namespace {

using ObjectTree = QMap<QDBusObjectPath, InterfaceMap>;

QByteArray fileName(const QString &name) {
  return name.toUtf8() + '\0';
}

QVariantMap block(const QString &kernelName, uint minorNumber, const QString &drive) {
  return {{"Device", fileName("/dev/" + kernelName)},
          {"PreferredDevice", fileName("/dev/preferred/" + kernelName)},
          {"DeviceNumber", quint64{makedev(8, minorNumber)}},
          {"Size", 1'000'000ULL},
          {"ReadOnly", true},
          {"Drive", link(drive)},
          {"IdType", "ext4"},
          {"IdLabel", "Volume"},
          {"IdUUID", "6f9619ff-8b86-d011-b42d-00cf4fc964ff"}};
}

}  // namespace

QVariant link(const QString &path) {
  return QVariant::fromValue(QDBusObjectPath(path));
}

QDBusMessage serviceSignal(const QString &path, const QString &name,
                           const QVariantList &arguments) {
  const QString interface = name == "PropertiesChanged" ? "Properties" : "ObjectManager";
  auto message = QDBusMessage::createSignal(path, "org.freedesktop.DBus." + interface, name);
  message.setArguments(arguments);
  return message;
}

MockDiskService::MockDiskService(QString bus) : _bus(std::move(bus)) {
  qDBusRegisterMetaType<InterfaceMap>();
  qDBusRegisterMetaType<ObjectTree>();
  qDBusRegisterMetaType<QByteArrayList>();
}

void MockDiskService::appear() {
  _connection = QDBusConnection::connectToBus(_bus, "mock");
  EXPECT_TRUE(_connection->registerVirtualObject("/", this, QDBusConnection::SubPath));
  EXPECT_TRUE(_connection->registerService(kDiskServiceName));
}

void MockDiskService::die() {
  if (!_connection) return;
  _connection->unregisterObject("/", QDBusConnection::UnregisterTree);
  _connection.reset();
  calls.clear();
  QDBusConnection::disconnectFromBus("mock");
}

void MockDiskService::stepDown() {
  EXPECT_TRUE(_connection->unregisterService(kDiskServiceName));
}

QString MockDiskService::addDisk(const QString &kernelName, uint minorNumber) {
  const QString path = kServiceRoot + "/block_devices/" + kernelName;
  const QString drive = kServiceRoot + "/drives/" + kernelName;
  tree[path] = {{kBlockInterface, block(kernelName, minorNumber, drive)},
                {kPartitionTableInterface, {{"Type", "gpt"}}}};
  tree[drive] = {{kDriveInterface,
                  {{"Vendor", "ACME"},
                   {"Model", "Disk 9"},
                   {"ConnectionBus", "usb"},
                   {"Removable", true},
                   {"Ejectable", true}}}};
  return path;
}

QString MockDiskService::addPartition(const QString &disk, uint number, uint minorNumber) {
  const QString path = disk + QString::number(number);
  const QString drive = tree[disk][kBlockInterface]["Drive"].value<QDBusObjectPath>().path();
  tree[path] = {{kBlockInterface, block(path.section('/', -1), minorNumber, drive)},
                {kFilesystemInterface, {{"MountPoints", QVariant::fromValue(QByteArrayList())}}},
                {kPartitionInterface,
                 {{"Number", number},
                  {"Type", "c12a7328-f81f-11d2-ba4b-00a0c93ec93b"},
                  {"Name", "a partition"},
                  {"UUID", "0e2f0b4c-1111-4c4c-8d8d-121212121212"},
                  {"Table", link(disk)}}}};
  return path;
}

void MockDiskService::add(const QString &path, const InterfaceMap &interfaces) {
  tree[path].insert(interfaces);
  say(serviceSignal(kServiceRoot, "InterfacesAdded",
                    {link(path), QVariant::fromValue(interfaces)}));
}

void MockDiskService::remove(const QString &path, const QStringList &interfaces) {
  for (const QString &interface : interfaces) tree[path].remove(interface);
  if (tree[path].isEmpty()) tree.remove(path);
  say(serviceSignal(kServiceRoot, "InterfacesRemoved", {link(path), interfaces}));
}

void MockDiskService::change(const QString &path, const QString &interface, const QString &property,
                             const QVariant &value) {
  tree[path][interface][property] = value;
  say(serviceSignal(path, "PropertiesChanged",
                    {interface, QVariantMap{{property, value}}, QStringList()}));
}

QDBusMessage MockDiskService::take(const QString &method) {
  const auto call = std::ranges::find(calls, method, &QDBusMessage::member);
  EXPECT_NE(call, calls.end()) << "nobody has called " << method.toStdString();
  if (call == calls.end()) return {};
  const QDBusMessage taken = *call;
  calls.erase(call);
  return taken;
}

void MockDiskService::answer(const QDBusMessage &call, const QVariantList &values) {
  say(call.createReply(values));
}

void MockDiskService::refuse(const QDBusMessage &call, const QString &error, const QString &text) {
  say(call.createErrorReply(error, text));
}

void MockDiskService::answerWithTree(const QDBusMessage &call) {
  ObjectTree objects;
  for (auto object = tree.begin(); object != tree.end(); ++object) {
    objects.insert(QDBusObjectPath(object.key()), object.value());
  }
  answer(call, {QVariant::fromValue(objects)});
}

bool MockDiskService::handleMessage(const QDBusMessage &message, const QDBusConnection &) {
  if (message.type() != QDBusMessage::MethodCallMessage) return false;
  if (message.member() == "GetManagedObjects" && !holdsTree) {
    answerWithTree(message);
  } else {
    calls << message;
  }
  return true;
}
