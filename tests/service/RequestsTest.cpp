// Mounts and unmounts with every kind of answer from the service, or none.

#include <QDBusArgument>

#include "Platform/linux/Refusals.h"
#include "service/ServiceTest.h"
#include "support/MuteVolume.h"

namespace {

const QString kBusy = "org.freedesktop.UDisks2.Error.DeviceBusy";
const QString kUnknownMethod = "org.freedesktop.DBus.Error.UnknownMethod";

// One refusal for each rule that distinguishes them.
const struct {
  QString error;
  QString message;
  DissenterStatus status;
  bool isThere = true;
} kRefusals[] = {
    {kBusy, "", kDAReturnBusy},
    {"org.freedesktop.UDisks2.Error.NotAuthorizedCanObtain", "", kDAReturnNotPrivileged},
    {"org.freedesktop.UDisks2.Error.Failed", "Error creating mount point: No space left on device",
     unixErrorStatus(ENOSPC)},
    {"org.freedesktop.UDisks2.Error.Failed",
     "Error mounting at /media/x: No space left on device: wrong fs type", kDAReturnError},
    {"org.freedesktop.DBus.Error.NoReply", "", kDAReturnNotReady},
    {kUnknownMethod, "No such interface", kDAReturnUnsupported},
    {kUnknownMethod, "Object does not exist at path \"/x\"", kDAReturnNotFound},
    {kUnknownMethod, "No such interface", kDAReturnNotFound, false},
    {"com.example.DeviceBusy", "No space left on device", kDAReturnError},
};

using Statuses = QList<DissenterStatus>;

class RequestsOfTheService : public ServiceTest {
 public:
  void SetUp() override { start(); }
};

}  // namespace

TEST(RefusalOfTheService, IsMappedToTheStatusOfItsError) {
  for (const auto &[error, message, status, isThere] : kRefusals) {
    EXPECT_EQ(refusalStatus(error, message, isThere), status) << (error + message).toStdString();
  }
}

TEST_F(RequestsOfTheService, HaveNoTimeoutWhileAPasswordIsTyped) {
  const Answers forced = unmount("disk0s2", DiskService::UnmountOption::Force);
  const Answers mounted = mount("disk0s1");
  ASSERT_TRUE(waitFor([&] { return service.calls.size() == 2; })) << "the flush takes too long";
  for (const QDBusMessage &call : service.calls) {
    EXPECT_TRUE(call.isInteractiveAuthorizationAllowed()) << call.member().toStdString();
  }
  const QDBusMessage unmountCall = service.take("Unmount");
  EXPECT_EQ(qdbus_cast<QVariantMap>(unmountCall.arguments().value(0)).value("force"), true);
  constexpr int kLimitOfTheBus = 25000;
  QTest::qWait(kLimitOfTheBus + 500);
  service.answer(service.take("Mount"), {7, "an answer of a wrong signature"});
  service.refuse(unmountCall, kBusy);
  service.answer(unmountCall);
  settle();
  EXPECT_EQ(*forced, Statuses{kDAReturnBusy}) << "the first answer counts";
  EXPECT_EQ(*mounted, Statuses{kDAReturnSuccess});
}

TEST_F(RequestsOfTheService, ForcedUnmountsDoNotWaitForASilentDisk) {
  const MuteVolume mute(mountPoint);
  if (!mute.isThere()) GTEST_SKIP() << "no file system may be mounted here";
  QVariant unwritten;
  QObject observer;
  workspace.addObserver(&observer, kVolumeUnwrittenNotification, [&](const Notification &note) {
    unwritten = note.userInfo.value(kNSDevicePathKey);
  });
  const Answers unmounted = unmount("disk0s2", DiskService::UnmountOption::Force);
  ASSERT_TRUE(waitFor([&] { return !service.calls.isEmpty(); }));
  EXPECT_EQ(unwritten, mountPoint);
  service.answer(service.take("Unmount"));
  settle();
  EXPECT_EQ(*unmounted, Statuses{kDAReturnSuccess});
}

TEST_F(RequestsOfTheService, ForAVanishedDiskFailEvenIfTheDiskComesBack) {
  const Answers mounted = mount("disk0s1");
  settle();
  const InterfaceMap interfaces = service.tree[esp];
  service.remove(esp, {kFilesystemInterface});
  settle();
  EXPECT_EQ(*mounted, Statuses{}) << "the mount should still be pending";
  service.add(esp, interfaces);
  const Answers unmountedEsp = unmount("disk0s1");
  const Answers unmounted = unmount("disk0s2");
  settle();
  service.remove(esp);
  service.add(esp, interfaces);
  service.remove(data);
  settle();
  EXPECT_EQ(*mounted, Statuses{kDAReturnNotFound});
  EXPECT_EQ(*unmountedEsp, Statuses{kDAReturnSuccess}) << "the ESP is not mounted";
  EXPECT_EQ(*unmounted, Statuses{kDAReturnNotFound}) << "the kernel still has the volume mounted";
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(events.count("-" + mountPoint), 1);
  while (!service.calls.isEmpty()) service.answer(service.calls.takeFirst());
  settle();
  EXPECT_EQ(mounted->size() + unmountedEsp->size() + unmounted->size(), 3) << "late answers";
}
