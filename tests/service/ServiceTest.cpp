#include "service/ServiceTest.h"

#include "support/Files.h"
#include "support/VolumeNews.h"

ServiceTest::ServiceTest() {
  writeFile(folder.filePath("mountinfo"),
            "30 1 8:18 / " + mountPoint.toUtf8() + " rw - ext4 /dev/sda2 rw\n");
  noteVolumeNews(workspace, _observer, events);
}

ServiceTest::~ServiceTest() = default;

// Messages sent before a call arrive before its answer. A reaction takes another turn.
void ServiceTest::settle() {
  const auto ping = QDBusMessage::createMethodCall(
      service.address().isEmpty() ? "org.freedesktop.DBus" : service.address(), "/",
      "org.freedesktop.DBus.Peer", "Ping");
  for (int turn = 0; turn < 4; ++turn) {
    EXPECT_EQ(systemBus.connection().call(ping).type(), QDBusMessage::ReplyMessage);
    QCoreApplication::processEvents();
  }
}

void ServiceTest::startProgram() {
  UnitNumbers units(BlockDevices("/nowhere"), UnitFile({}, {}));
  disks = std::make_unique<LinuxDiskService>(systemBus, std::move(units),
                                             folder.filePath("mountinfo"), workspace);
}

void ServiceTest::start() {
  service.appear();
  startProgram();
  ASSERT_TRUE(waitFor([&] { return events.contains("changed"); }));
  ASSERT_EQ(names().mid(0, 3), (QStringList{"disk0", "disk0s1", "disk0s2"}));
  events.clear();
}

QVariant ServiceTest::value(const QString &name, const QString &key) const {
  return disks->descriptionOfMedia(name).value_or(DiskDescription()).value(key);
}

QList<DiskDescription> ServiceTest::everything() const {
  QList<DiskDescription> all;
  for (const QString &name : names()) all << *disks->descriptionOfMedia(name);
  return all;
}

DiskService::Completion ServiceTest::noteIn(const Answers &answers) {
  return [answers](const auto &dissenter) {
    *answers << (dissenter ? dissenter->status : kDAReturnSuccess);
  };
}

Answers ServiceTest::mount(const QString &name) {
  const auto answers = std::make_shared<QList<DissenterStatus>>();
  disks->mount(name, std::nullopt, noteIn(answers));
  return answers;
}

Answers ServiceTest::unmount(const QString &name, DiskService::UnmountOption option) {
  const auto answers = std::make_shared<QList<DissenterStatus>>();
  disks->unmount(name, option, noteIn(answers));
  return answers;
}
