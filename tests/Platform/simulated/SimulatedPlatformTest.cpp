#include "Platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

#include "support/TestMachine.h"

namespace {

/// One partition whose requests wait a little, and one of another disk that is mounted.
QByteArray slowMachine(const QByteArray &mishap = {}) {
  const QByteArray more = mishap.isEmpty() ? "" : R"(, "mishap": ")" + mishap + "\"";
  return R"({ "disks": [
    { "unit": 0, "partitions": [ { "slice": 1, "delay": 20, "volume": { "kind": "msdos", "name": "EFI" } )" +
         more + R"( } ] },
    { "unit": 1, "partitions": [ { "slice": 1, "volume": { "kind": "ext4", "name": "Data", "mountPoint": "Data" } } ] }
  ] })";
}

/// Everything that a machine says, in its order: "+Data" a mount, "-Data" an unmount, "~Data" a
/// rename, "!f8da0006" a refused request, "ok" one that was not refused.
class Simulated : public testing::Test {
 protected:
  void start(const QByteArray &json) {
    machine.emplace(json);
    listen(kNSWorkspaceDidMountNotification, "+");
    listen(kNSWorkspaceDidUnmountNotification, "-");
    listen(kNSWorkspaceDidRenameVolumeNotification, "~");
  }

  void mount(const QString &bsdName) { machine->platform.mount(bsdName, std::nullopt, answerTo()); }
  void unmount(const QString &bsdName) {
    machine->platform.unmount(bsdName, DiskService::UnmountOption::Default, answerTo());
  }

  /// What was said until that many requests had been answered and nothing more was under way.
  QStringList heard(int answers = 1) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return _answers >= answers; }));
    for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
    return std::exchange(_heard, {});
  }

  std::optional<TestPlatform> machine;

 private:
  void listen(const QString &name, const QString &sign) {
    machine->platform.workspaceNotificationCenter().addObserver(
        &_observer, name, [this, sign](const Notification &notification) {
          _heard +=
              sign + notification.userInfo.value(kNSDevicePathKey).toString().section('/', -1);
        });
  }
  DiskService::Completion answerTo() {
    return [this](const std::optional<Dissenter> &dissenter) {
      ++_answers;
      _heard += dissenter ? "!" + QString::number(dissenter->status, 16) : QString("ok");
    };
  }

  QObject _observer;
  QStringList _heard;
  int _answers = 0;
};

}  // namespace

TEST_F(Simulated, ADiskVanishesBeforeInAndAfterARequest) {
  start(slowMachine("disk vanishes before"));
  mount("disk0s1");
  EXPECT_EQ(heard(), QStringList({"-", "!f8da0006"}));

  start(slowMachine("disk vanishes during"));
  mount("disk0s1");
  EXPECT_TRUE(machine->platform.descriptionOfMedia("disk0s1").has_value());
  EXPECT_EQ(heard(2), QStringList({"-", "!f8da0006"}));

  start(slowMachine("disk vanishes after"));
  mount("disk0s1");
  EXPECT_EQ(heard(3), QStringList({"+EFI", "ok", "-EFI", "-"}));
  EXPECT_FALSE(machine->platform.descriptionOfMedia("disk0s1").has_value());
  EXPECT_EQ(machine->platform.mediaNames(), QStringList({"disk1", "disk1s1"}));
}

TEST_F(Simulated, AServiceThatDiesEndsAllItsRequestsAndComesBackWhenTold) {
  start(slowMachine("service dies"));
  mount("disk0s1");
  mount("disk0s1");
  EXPECT_EQ(heard(2), QStringList({"+", "!f8da000a", "!f8da000a"}));
  EXPECT_EQ(machine->platform.presence(), DiskService::Presence::Absent);
  EXPECT_TRUE(machine->platform.mediaNames().isEmpty());
  unmount("disk1s1");
  EXPECT_EQ(heard(3), QStringList({"!f8da000a"}));

  machine->platform.setPresence(DiskService::Presence::Answering);
  mount("disk0s1");  // the mishap is over
  EXPECT_EQ(heard(4), QStringList({"+", "+EFI", "ok"}));
  unmount("disk1s1");  // and what was mounted has stayed so
  EXPECT_EQ(heard(5), QStringList({"-Data", "ok"}));
}

TEST_F(Simulated, ARequestIsNotServedByWhatCameBackWhileItWaited) {
  start(slowMachine());
  mount("disk0s1");
  machine->platform.pull(0);
  machine->platform.plugBack(0);
  EXPECT_EQ(heard(), QStringList({"-", "!f8da0006", "+"}));
}

TEST_F(Simulated, TheServiceAnswersInItsOwnTimeUnlessItIsGoneByThen) {
  const QByteArray asking =
      R"({ "service": "asking", "answersAfter": 20, "disks": [ { "unit": 0 } ] })";
  start(asking);
  EXPECT_TRUE(machine->platform.mediaNames().isEmpty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !machine->platform.mediaNames().isEmpty(); }));
  EXPECT_EQ(heard(0), QStringList({"+"}));

  start(R"({ "service": "asking", "answersAfter": 0 })");
  machine->platform.setPresence(DiskService::Presence::Absent);
  EXPECT_EQ(heard(0), QStringList({"+"}));
  EXPECT_EQ(machine->platform.presence(), DiskService::Presence::Absent);
}

TEST_F(Simulated, VolumesOfAnyNameGetAFolderThatIsTheirOwn) {
  start(slowMachine());
  const QStringList names = {"..", QString(10000, 'x'), "a/b", QString("a%1b").arg(QChar(0)),
                             "Data"};
  for (const QString &name : names) {
    machine->platform.rename("disk0s1", name);
    machine->platform.mountFromOutside("disk0s1");
    const auto description = machine->platform.descriptionOfMedia("disk0s1");
    const QFileInfo folder(
        description->value(kDADiskDescriptionVolumePathKey).toUrl().toLocalFile());
    EXPECT_TRUE(folder.isDir()) << folder.filePath().toStdString();
    EXPECT_EQ(folder.dir().path(), machine->platform.volumesFolder());
    EXPECT_NE(folder.fileName(), "Data");
    machine->platform.unmountFromOutside("disk0s1");
    EXPECT_FALSE(QFileInfo::exists(folder.filePath()));
  }
}
