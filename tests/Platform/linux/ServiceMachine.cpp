#include "Platform/linux/ServiceMachine.h"

#include <sys/sysmacros.h>

#include <QDBusObjectPath>

namespace {

QByteArray fileName(const QByteArray &name) {
  return name + '\0';
}

QVariantMap block(const QString &device, uint minorNumber) {
  return {{"Device", fileName(device.toUtf8())},
          {"DeviceNumber", quint64{makedev(8, minorNumber)}},
          {"Size", 1'000'000ULL}};
}

}  // namespace

QString ServiceMachine::add(const QString &path, const InterfaceMap &interfaces) {
  objects[path].add(interfaces);
  return path;
}

QString ServiceMachine::addDisk(const QString &kernelName, uint minorNumber) {
  return add("/block/" + kernelName, {{kBlockInterface, block("/dev/" + kernelName, minorNumber)},
                                      {kPartitionTableInterface, {}}});
}

QString ServiceMachine::addLoop(const QString &kernelName, uint minorNumber,
                                const QByteArray &backingFile) {
  const QString path = addDisk(kernelName, minorNumber);
  return add(path, {{kLoopInterface, {{"BackingFile", fileName(backingFile)}}}});
}

QString ServiceMachine::addPartition(const QString &disk, int number, const QString &type,
                                     const QString &name) {
  const auto count = static_cast<uint>(objects.size());
  const QVariantMap partition{{"Number", static_cast<uint>(number)},
                              {"Type", type},
                              {"Name", name},
                              {"Table", QVariant::fromValue(QDBusObjectPath(disk))}};
  return add(
      QStringLiteral("%1/%2/%3").arg(disk).arg(number).arg(count),
      {{kBlockInterface, block("/dev/partition", 1000 + count)}, {kPartitionInterface, partition}});
}

QString ServiceMachine::addDrive(const QString &disk, const QVariantMap &properties) {
  const QString path = "/drives" + disk;
  const QVariant link = QVariant::fromValue(QDBusObjectPath(path));
  for (auto object = objects.begin(); object != objects.end(); ++object) {
    if (object.key().startsWith(disk)) object->change(kBlockInterface, {{"Drive", link}}, {});
  }
  return add(path, {{kDriveInterface, properties}});
}

void ServiceMachine::set(const QString &path, const QString &interface, const QString &property,
                         const QVariant &value) {
  objects[path].change(interface, {{property, value}}, {});
}

MediaCatalog ServiceMachine::catalog() {
  return MediaCatalog(UnitNumbers(BlockDevices("/nowhere"), UnitFile({}, {})));
}
