// A volume that never answers must not block the program or its exit.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QElapsedTimer>
#include <QTest>

#include "Foundation/NotificationCenter.h"
#include "Platform/ThisMachine.h"
#include "Platform/linux/LinuxDiskService.h"
#include "Platform/linux/LinuxVolumeFiles.h"
#include "support/Files.h"
#include "support/IconBytes.h"
#include "support/MuteVolume.h"
#include "support/VolumeNews.h"

namespace {

using enum LookAtPath::Access;

class SilentVolume : public testing::Test {
 protected:
  SilentVolume() { noteVolumeNews(workspace, observer, events); }
  void SetUp() override {
    if (!volume.isThere()) GTEST_SKIP() << "no file system may be mounted here";
  }
  qint64 timeOf(const std::function<void()> &action) {
    QElapsedTimer timer;
    timer.start();
    action();
    return timer.elapsed();
  }

  const QTemporaryDir folder;
  const QTemporaryDir other;
  MuteVolume volume{folder.path()};
  NotificationCenter workspace;
  QObject observer;
  QStringList events;
  MessageBus noBus{""};
  LinuxDiskService disks{
      noBus, {BlockDevices("/nowhere"), UnitFile({}, {})}, "/proc/self/mountinfo", workspace};
  LinuxVolumeFiles files{disks};
};

}  // namespace

TEST_F(SilentVolume, BlocksTheProgramOnceAndItsLateAnswerServesTheNextRefresh) {
  const QString file = folder.path() + "/.VolumeIcon.icns";
  writeFile(other.filePath(".VolumeIcon.icns"), icns({{"ic08", pngOf(256, Qt::magenta)}}));
  ASSERT_TRUE(QTest::qWaitFor([&] { return files.look(other.path()).access == Open; }));
  QTest::qWait(100);  // lets the missing bus be announced first
  events.clear();
  EXPECT_LT(timeOf([&] { EXPECT_EQ(files.image(file), std::nullopt); }), 250);
  // The next turn of the event loop has its own 100 ms.
  ASSERT_TRUE(QTest::qWaitFor([&] { return volume.questions() > 0; }));
  const int asked = volume.questions();
  EXPECT_LT(timeOf([&] { EXPECT_EQ(files.look(file).access, Unknown); }), 50) << "no second wait";
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return files.image(other.filePath(".VolumeIcon.icns")).has_value();
  })) << "another volume's icon";
  EXPECT_EQ(volume.questions(), asked) << "only one process may wait for the volume";

  LookAtPath late;
  workspace.addObserver(&observer, kNSWorkspaceDidMountNotification, [&](const Notification &) {
    late = files.look(folder.path() + "/late");
    files.image(file);
  });
  events.clear();
  volume.fail();
  ASSERT_TRUE(QTest::qWaitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(late.access, Closed) << "the volume answers again";
  QTest::qWait(50);
  // A helper that is slow to start answers the question about "late" late as well.
  EXPECT_LE(events.count("changed"), 2) << "the late answer was kept";
}

TEST_F(SilentVolume, DelaysTheListOfLoginItemsOnlyBriefly) {
  const QString name = qEnvironmentVariable("XDG_CONFIG_HOME") + "/autostart/other.desktop";
  writeFile(name, "[Desktop Entry]\nExec=" + folder.filePath("program").toUtf8() + "\n");
  QFile::link(folder.filePath("own.desktop"), name + ".desktop");
  const auto platform = makePlatform();
  EXPECT_LT(timeOf([&] { platform->loginItems().snapshot(); }), 250);
  QFile::remove(name);
  QFile::remove(name + ".desktop");
}

TEST_F(SilentVolume, DoesNotDelayTheExitAndLeavesNoProcess) {
  const auto isAlone = [] {
    siginfo_t child{};
    return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) != 0;
  };
  {
    LinuxDiskService ending(noBus, {BlockDevices("/nowhere"), UnitFile({}, {})},
                            "/proc/self/mountinfo", workspace);
    LinuxVolumeFiles(ending).look(folder.path() + "/x");
    EXPECT_TRUE(QTest::qWaitFor([&] { return volume.questions() > 0; }));
  }
  EXPECT_FALSE(isAlone()) << "SIGKILL does not end a process that waits in the kernel";
  volume.fail();
  EXPECT_TRUE(QTest::qWaitFor(isAlone));
}
