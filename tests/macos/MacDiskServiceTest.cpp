// Behaviour of this backend's service alone: refusals inside a request, an administrator's mount, a
// restart of the service.

#include <QTemporaryDir>
#include <QTest>

#include "macos/MacMachine.h"
#include "support/AsAnybody.h"
#include "support/Files.h"

namespace {

using Answers = QList<DissenterStatus>;

class MacDisks : public MacMachine {
 protected:
  DiskService &service() const { return platform->diskService(); }
  DiskService::Completion answer() {
    return [this](const std::optional<Dissenter> &dissenter) {
      answers += dissenter ? dissenter->status : kDAReturnSuccess;
    };
  }

  Answers answers;
};

}  // namespace

TEST_F(MacDisks, ARequestIsAnsweredOnceOrFailsWithTheServiceOrThePlatform) {
  start();
  service().mount(kEsp, "/Volumes/Ä b", answer());
  fake::serve(fake::Mode::ModalPanel);
  EXPECT_EQ(answers, Answers{});
  settle();
  EXPECT_EQ(answers, Answers{kDAReturnSuccess});
  EXPECT_TRUE(service().descriptionOfVolume("/Volumes/Ä b").has_value());

  service().unmount(kEsp, DiskService::UnmountOption::Force, answer());
  mac.postNotification(kServiceStart);
  settle();
  EXPECT_EQ(answers, (Answers{kDAReturnSuccess, kDAReturnNotReady}));

  service().unmount(kEsp, DiskService::UnmountOption::Default, answer());
  platform.reset();
  settle();
  EXPECT_EQ(answers.size(), 2);
}

TEST_F(MacDisks, ARefusedEspIsMountedByAnAdministrator) {
  // A script in place of the system's prompt. It records its arguments and exits as each case says.
  const QTemporaryDir root;
  const QString asked = writeFile(root.filePath("asked"), "");
  const QString prompt = writeFile(root.filePath("usr/bin/osascript"), "");
  for (const QString &path : {root.path(), asked, prompt}) {
    QFile::setPermissions(path, QFile::Permissions(0x7777));
  }
  const QByteArray mountOfTheEsp =
      R"(-e do shell script "/usr/sbin/diskutil mount disk0s1" with administrator privileges)";
  const char kHostile[] = "disk0s2\"; rm x";
  mac.plug(kHostile, {{"DAMediaName", "EFI System Partition"}});
  start(root.path());
  const struct {
    const char *disk;
    DissenterStatus refusal;
    QByteArray end;
    DissenterStatus expected;
    QByteArray asked;
  } cases[] = {
      {kEsp, kDAReturnNotPermitted, "exit 0", kDAReturnSuccess, mountOfTheEsp},
      {kEsp, kDAReturnNotPrivileged, "echo 'Abgebrochen (-128)' >&2; exit 1",
       unixErrorStatus(ECANCELED), mountOfTheEsp},
      {kEsp, kDAReturnNotPermitted, "kill -9 $$", kDAReturnNotPermitted, mountOfTheEsp},
      {kEsp, 0xC00D, "exit 0", 0xC00D, ""},
      {"disk0", kDAReturnNotPermitted, "exit 0", kDAReturnNotPermitted, ""},
      {kHostile, kDAReturnNotPermitted, "exit 0", kDAReturnNotPermitted, ""},
  };
  for (const auto &each : cases) {
    writeFile(asked, "");
    writeFile(prompt, "#!/bin/sh\nprintf '%s' \"$*\" > " + asked.toUtf8() + "\n" + each.end);
    const AsAnybody anybody;
    mac.refusals = {{each.disk, each.refusal}};
    service().mount(each.disk, std::nullopt, answer());
    settle();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !answers.isEmpty(); }));
    EXPECT_EQ(std::exchange(answers, {}), Answers{each.expected});
    EXPECT_EQ(contentOf(asked), each.asked);
  }
}

TEST_F(MacDisks, AMissingServiceIsReportedAsNotReady) {
  mac.hasDiskService = false;
  start();
  EXPECT_EQ(service().presence(), DiskService::Presence::Absent);
  EXPECT_EQ(service().descriptionOfMedia(kEsp), std::nullopt);
  service().mount(kEsp, std::nullopt, answer());
  EXPECT_EQ(answers, Answers{kDAReturnNotReady});
}
