// What only this backend's service does: refusals inside a request, values of any type, no answer.

#include <QUrl>

#include "DiskArbitrator/DiskArbitrator.h"
#include "macos/MacMachine.h"

namespace {

using Answers = std::vector<DissenterStatus>;

class MacDisks : public MacMachine {
 protected:
  DiskService &service() const { return platform->diskService(); }
  DiskService::Completion answer() {
    return [this](const std::optional<Dissenter> &dissenter) {
      answers.push_back(dissenter ? dissenter->status : kDAReturnSuccess);
    };
  }

  Answers answers;
};

}  // namespace

TEST_F(MacDisks, ARefusalInsideTheCallEndsTheWaitThatComesAfterIt) {
  mac.mount(kEsp, "/usr");  // a folder that is there
  mac.onUnmount(kEsp) = fake::refusedInside(kDAReturnNotPrivileged);
  start();
  const CurrentPlatform current(*platform);
  QStringList refusals;
  QObject observer;
  NotificationCenter::defaultCenter().addObserver(
      &observer, "arbitrator",
      [&](const Notification &note) { refusals += note.userInfo.value("note").toString(); });
  EXPECT_TRUE(DiskArbitrator::umountPartition(kEsp, false));
  ASSERT_EQ(refusals.size(), 1);
  EXPECT_TRUE(refusals.first().startsWith("umount failed for disk0s1, reason: not privileged"));
}

TEST_F(MacDisks, ARequestIsAnsweredOnceOrEndsWithThePlatform) {
  using When = fake::Answer::When;
  const struct {
    fake::Answer answer;
    Answers expected;
  } cases[] = {{fake::refusedInside(kDAReturnBusy), {kDAReturnBusy}},
               {fake::refused(0xC00D), {0xC00D}},
               {{When::WhenTheDiskHasVanished}, {kDAReturnNotFound}},
               {{When::Never}, {}}};
  start();
  for (const auto &each : cases) {
    mac.onMount(kEsp) = each.answer;
    answers.clear();
    service().mount(kEsp, "/Volumes/Elsewhere", answer());
    fake::serve(fake::Mode::ModalPanel);
    EXPECT_EQ(answers.empty(), each.answer.when != When::InsideTheCall);
    fake::serve();
    EXPECT_EQ(answers, each.expected);
    if (each.answer.when == When::WhenTheDiskHasVanished) SetUp();
  }
  mac.onMount(kEsp) = {};
  service().mount(kEsp, "/Volumes/Elsewhere", answer());
  platform.reset();
  fake::serve();
  EXPECT_EQ(answers, Answers{});
}

TEST_F(MacDisks, AVolumeIsMountedWhereItIsWanted) {
  start();
  service().mount(kEsp, "/Volumes/Ä b", answer());
  fake::serve();
  EXPECT_EQ(answers, Answers{kDAReturnSuccess});
  EXPECT_EQ(mac.mountPoint(kEsp), "/Volumes/Ä b");
  EXPECT_EQ(service()
                .descriptionOfVolume("/Volumes/Ä b")
                .value_or(DiskDescription())
                .value(kDADiskDescriptionVolumePathKey),
            QUrl::fromLocalFile("/Volumes/Ä b"));
}

TEST_F(MacDisks, AServiceThatIsNotThereIsNotReady) {
  mac.hasDiskService = false;
  start();
  EXPECT_EQ(service().presence(), DiskService::Presence::Absent);
  EXPECT_EQ(service().descriptionOfMedia(kEsp), std::nullopt);
  EXPECT_EQ(service().descriptionOfVolume("/"), std::nullopt);
  service().mount(kEsp, std::nullopt, answer());
  service().unmount(kEsp, DiskService::UnmountOption::Force, answer());
  EXPECT_EQ(answers, (Answers{kDAReturnNotReady, kDAReturnNotReady}));
}

TEST_F(MacDisks, ValuesOfAnyTypeAreTakenAsTheyAre) {
  mac.plug("disk9", {{"DAMediaName", 7},
                     {"DAMediaContent", fake::Dictionary{}},
                     {"DAMediaIcon", "no dictionary"},
                     {"DAMediaUUID", fake::Uuid{"0E2F0B4C-1111-4C4C-8D8D-121212121212"}},
                     {"DAVolumeUUID", "no UUID"},
                     {"DAVolumeName", ""},
                     {"DADeviceInternal", true},
                     {"DAVolumePath", fake::Path{"/Volumes/Nameless"}}});
  start();
  const DiskDescription description = *service().descriptionOfMedia("disk9");
  EXPECT_EQ(description.value(kDADiskDescriptionMediaNameKey), 7);
  EXPECT_EQ(description.value(kDADiskDescriptionDeviceInternalKey), true);
  EXPECT_EQ(description.value(kDADiskDescriptionMediaUUIDKey).value<DiskUUID>(),
            DiskUUID::fromText("0e2f0b4c-1111-4c4c-8d8d-121212121212"));
  EXPECT_EQ(description.value(kDADiskDescriptionMediaIconKey).toMap(), QVariantMap());
  for (const QString &key : {kDADiskDescriptionMediaContentKey, kDADiskDescriptionVolumeUUIDKey,
                             kDADiskDescriptionVolumeNameKey}) {
    EXPECT_FALSE(description.contains(key)) << key.toStdString();
  }
}
