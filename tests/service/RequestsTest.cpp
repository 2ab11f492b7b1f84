// Mounts and unmounts that the service answers in every way there is, or not at all.

#include <dlfcn.h>

#include <QDBusArgument>
#include <atomic>
#include <cerrno>
#include <limits>

#include "service/ServiceTest.h"

struct DBusConnection;
struct DBusMessage;
struct DBusPendingCall;

namespace {
std::atomic<int> callsInTime = 0;
std::atomic<int> callsWithoutTimeOut = 0;
}  // namespace

// Takes the place of the bus library's, so that nobody has to wait for a time-out to see that there
// is none.
extern "C" unsigned dbus_connection_send_with_reply(DBusConnection *connection,
                                                    DBusMessage *message, DBusPendingCall **pending,
                                                    int timeOut) {
  ++(timeOut == std::numeric_limits<int>::max() ? callsWithoutTimeOut : callsInTime);
  static const auto original = reinterpret_cast<decltype(&dbus_connection_send_with_reply)>(
      dlsym(RTLD_NEXT, "dbus_connection_send_with_reply"));
  return original(connection, message, pending, timeOut);
}

namespace {

const QString kBusy = "org.freedesktop.UDisks2.Error.DeviceBusy";
const QString kUnknownMethod = "org.freedesktop.DBus.Error.UnknownMethod";

const struct {
  const char *error;
  const char *message;
  DissenterStatus status;
} kRefusals[] = {
    {"org.freedesktop.UDisks2.Error.DeviceBusy", "", kDAReturnBusy},
    {"org.freedesktop.UDisks2.Error.NotMounted", "", kDAReturnNotMounted},
    {"org.freedesktop.UDisks2.Error.NotAuthorizedCanObtain", "", kDAReturnNotPrivileged},
    {"org.freedesktop.UDisks2.Error.NotAuthorized", "", kDAReturnNotPermitted},
    {"org.freedesktop.UDisks2.Error.NotAuthorizedDismissed", "", unixErrorStatus(ECANCELED)},
    {"org.freedesktop.UDisks2.Error.NotSupported", "", kDAReturnUnsupported},
    {"org.freedesktop.UDisks2.Error.Failed", "Error creating mount point: No space left on device",
     unixErrorStatus(ENOSPC)},
    {"org.freedesktop.UDisks2.Error.Failed", "mkdir: Read-only file system", kDAReturnNotWritable},
    {"org.freedesktop.UDisks2.Error.Failed",
     "Error mounting at /media/x: No space left on device: wrong fs type", kDAReturnError},
    {"org.freedesktop.UDisks2.Error.SomethingNew", "", kDAReturnError},
    {"org.freedesktop.DBus.Error.NoReply", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.Spawn.ChildExited", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.UnknownMethod", "No such interface", kDAReturnUnsupported},
    {"org.freedesktop.DBus.Error.UnknownMethod", "Object does not exist at path \"/x\"",
     kDAReturnNotFound},
    {"org.freedesktop.DBus.Error.AccessDenied", "", kDAReturnNotPermitted},
    {"com.example.AlreadyMounted", "No space left on device", kDAReturnError},
};

using Statuses = QList<DissenterStatus>;

class RequestsOfTheService : public ServiceTest {
 public:
  void SetUp() override { start(); }
};

}  // namespace

TEST_F(RequestsOfTheService, AreRefusedWithTheStatusOfTheError) {
  for (const auto &row : kRefusals) {
    const Answers mounted = mount("disk0s1");
    const Answers unmounted = unmount("disk0s2");
    settle();
    service.refuse(service.take("Mount"), row.error, row.message);
    service.refuse(service.take("Unmount"), row.error, row.message);
    settle();
    EXPECT_EQ(*mounted, Statuses{row.status}) << row.error << ": " << row.message;
    EXPECT_EQ(*unmounted, Statuses{row.status}) << row.error << ": " << row.message;
  }
}

// The service's words for an object that is gone are those for one that cannot do it.
TEST_F(RequestsOfTheService, ForWhatTheNextServiceDoesNotKnowAreNotFound) {
  service.die();
  service.tree.remove(esp);
  service.holdsTree = true;
  service.appear();
  ASSERT_TRUE(waitFor([&] { return !service.calls.isEmpty(); }));
  const Answers mounted = mount("disk0s1");
  settle();
  service.answerWithTree(service.take("GetManagedObjects"));
  service.refuse(service.take("Mount"), kUnknownMethod, "No such interface");
  settle();
  EXPECT_EQ(*mounted, Statuses{kDAReturnNotFound});
}

TEST_F(RequestsOfTheService, WaitForAPersonsPasswordForAsLongAsItTakes) {
  callsWithoutTimeOut = 0;
  unmount("disk0s2");
  unmount("disk0s2", DiskService::UnmountOption::Force);
  mount("disk0s1");
  ASSERT_TRUE(waitFor([&] { return service.calls.size() == 3; })) << "the flush takes its time";
  for (const QDBusMessage &call : service.calls) {
    EXPECT_TRUE(call.isInteractiveAuthorizationAllowed()) << call.member().toStdString();
    const auto options = qdbus_cast<QVariantMap>(call.arguments().value(0));
    EXPECT_FALSE(options.contains("auth.no_user_interaction"));
  }
  service.take("Unmount");
  const auto options = qdbus_cast<QVariantMap>(service.take("Unmount").arguments().value(0));
  EXPECT_EQ(options.value("force"), true);
  if (callsInTime + callsWithoutTimeOut == 0)
    GTEST_SKIP() << "Qt has found the bus library in another way";
  EXPECT_EQ(callsWithoutTimeOut, 3);
}

TEST_F(RequestsOfTheService, AreAnsweredInWhateverOrderTheServiceLikes) {
  const Answers first = mount("disk0s1");
  const Answers second = mount("disk0s1");
  const Answers third = unmount("disk0s2");
  settle();
  const auto firstCall = service.take("Mount");
  const auto secondCall = service.take("Mount");
  service.answer(service.take("Unmount"), {"an answer", 7, "of a wrong signature"});
  settle();
  EXPECT_EQ(*third, Statuses{kDAReturnSuccess});
  service.refuse(secondCall, kBusy);
  service.answer(secondCall, {"a second answer"});
  settle();
  EXPECT_EQ(*second, Statuses{kDAReturnBusy});
  EXPECT_EQ(*first, Statuses{});
  service.answer(firstCall, {"/somewhere"});
  settle();
  EXPECT_EQ(*first, Statuses{kDAReturnSuccess});
  EXPECT_EQ(*second, Statuses{kDAReturnBusy});
}

TEST_F(RequestsOfTheService, ForADiskThatVanishesAreOverWithIt) {
  const Answers mounted = mount("disk0s1");
  const Answers unmountedEsp = unmount("disk0s1");
  const Answers unmounted = unmount("disk0s2");
  settle();
  service.remove(esp);
  service.remove(data);
  settle();
  EXPECT_EQ(*mounted, Statuses{kDAReturnNotFound});
  EXPECT_EQ(*unmountedEsp, Statuses{kDAReturnSuccess}) << "it is mounted no more";
  EXPECT_EQ(*unmounted, Statuses{kDAReturnNotFound}) << "the kernel has it mounted";
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(events.count("-" + mountPoint), 1);
  while (!service.calls.isEmpty()) service.answer(service.calls.takeFirst());
  settle();
  EXPECT_EQ(mounted->size() + unmountedEsp->size() + unmounted->size(), 3) << "late answers";
  EXPECT_EQ(*mount("disk0s1"), Statuses{kDAReturnNotFound});
}

TEST_F(RequestsOfTheService, ForADiskThatVanishesAndComesBackInOneBreathAreOver) {
  const Answers mounted = mount("disk0s1");
  settle();
  const InterfaceMap interfaces = service.tree[esp];
  service.remove(esp);
  service.add(esp, interfaces);
  service.change(esp, kBlockInterface, "IdLabel", "Another");
  settle();
  EXPECT_EQ(*mounted, Statuses{kDAReturnNotFound});
  EXPECT_EQ(names(), (QStringList{"disk0", "disk0s1", "disk0s2"}));
  const Answers again = mount("disk0s1");
  settle();
  service.answer(service.take("Mount"), {"/late"});
  service.answer(service.take("Mount"), {"/somewhere"});
  settle();
  EXPECT_EQ(*mounted, Statuses{kDAReturnNotFound});
  EXPECT_EQ(*again, Statuses{kDAReturnSuccess});
}

TEST_F(RequestsOfTheService, ForAFileSystemThatIsLookedAtAnewWaitOn) {
  const Answers mounted = mount("disk0s1");
  settle();
  service.remove(esp, {kFilesystemInterface});
  settle();
  EXPECT_EQ(*mounted, Statuses{});
  service.refuse(service.take("Mount"), kUnknownMethod, "No such interface");
  settle();
  EXPECT_EQ(*mounted, Statuses{kDAReturnUnsupported});
}
