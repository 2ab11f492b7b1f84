#include "Platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

#include "support/TestMachine.h"
#include "support/VolumeNews.h"

namespace {

class Simulated : public testing::Test {
 protected:
  /// One partition whose requests take some time, and a mounted one on another disk.
  void start(const QByteArray &more = {}) {
    machine.emplace(R"({ "disks": [
    { "unit": 0, "partitions": [ { "slice": 1, "delay": 20, "volume": { "kind": "msdos", "name": "EFI" } )" +
                    more + R"( } ] },
    { "unit": 1, "partitions": [ { "slice": 1, "volume": { "kind": "ext4", "name": "Data", "mountPoint": "Data" } } ] }
  ] })");
    noteVolumeNews(machine->platform.workspaceNotificationCenter(), _observer, _heard);
  }

  void mount() {
    machine->platform.mount("disk0s1", std::nullopt, [this](const auto &dissenter) {
      _heard += dissenter ? QString::number(dissenter->status, 16) : QString("ok");
    });
  }

  /// All events of the machine, including its answers, in order.
  void expectHeard(const QStringList &expected) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return _heard.size() >= expected.size(); }));
    Program::settle();
    EXPECT_EQ(std::exchange(_heard, {}), expected);
  }

  std::optional<TestPlatform> machine;

 private:
  QObject _observer;
  QStringList _heard;
};

}  // namespace

TEST_F(Simulated, ADiskVanishesBeforeDuringAndAfterARequest) {
  for (const QByteArray when : {"before", "during"}) {
    start(R"(, "mishap": "disk vanishes )" + when + "\"");
    mount();
    EXPECT_EQ(machine->platform.descriptionOfMedia("disk0s1").has_value(), when == "during");
    expectHeard({"changed", "f8da0006"});
  }
  start(R"(, "mishap": "disk vanishes after")");
  const QString folder = machine->folder("EFI");
  mount();
  expectHeard({"+" + folder, "ok", "-" + folder, "changed"});
  EXPECT_EQ(machine->platform.mediaNames(), QStringList({"disk1", "disk1s1"}));
}

TEST_F(Simulated, AServiceThatDiesFailsItsRequestsAndCanBeRestarted) {
  start(R"(, "mishap": "service dies")");
  mount();
  mount();
  expectHeard({"changed", "f8da000a", "f8da000a"});
  EXPECT_TRUE(machine->platform.mediaNames().isEmpty());
  machine->platform.setPresence(DiskService::Presence::Answering);
  mount();  // the mishap is over
  expectHeard({"changed", "+" + machine->folder("EFI"), "ok"});
}

TEST_F(Simulated, ARequestForAPulledDiskFailsEvenIfTheDiskIsBack) {
  start();
  mount();
  machine->platform.pull(0);
  machine->platform.plugBack(0);
  expectHeard({"changed", "f8da0006", "changed"});
}

TEST_F(Simulated, VolumesOfAnyNameGetAFolderOfTheirOwn) {
  start();
  for (const QString &name :
       {QString(".."), QString(10000, 'x'), QString("a/b"), QString(QChar(0)), QString("Data")}) {
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
