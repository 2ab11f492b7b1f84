#include "Platform/linux/Refusals.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

struct Row {
  const char *error;
  const char *message;
  DAReturn status;
};

const Row kRows[] = {
    {"org.freedesktop.UDisks2.Error.AlreadyMounted", "", kDAReturnBusy},
    {"org.freedesktop.UDisks2.Error.DeviceBusy", "", kDAReturnBusy},
    {"org.freedesktop.UDisks2.Error.NotMounted", "", kDAReturnNotMounted},
    {"org.freedesktop.UDisks2.Error.NotAuthorizedCanObtain", "", kDAReturnNotPrivileged},
    {"org.freedesktop.UDisks2.Error.NotAuthorized", "", kDAReturnNotPermitted},
    {"org.freedesktop.UDisks2.Error.OptionNotPermitted", "", kDAReturnNotPermitted},
    {"org.freedesktop.UDisks2.Error.NotAuthorizedDismissed", "", unixErrorStatus(ECANCELED)},
    {"org.freedesktop.UDisks2.Error.Cancelled", "", unixErrorStatus(ECANCELED)},
    {"org.freedesktop.UDisks2.Error.NotSupported", "", kDAReturnUnsupported},
    {"org.freedesktop.UDisks2.Error.Failed", "Error mounting: wrong fs type", kDAReturnError},
    {"org.freedesktop.UDisks2.Error.Failed", "Error creating mount point: No space left on device",
     unixErrorStatus(ENOSPC)},
    {"org.freedesktop.UDisks2.Error.Failed", "mkdir: Read-only file system", kDAReturnNotWritable},
    {"org.freedesktop.UDisks2.Error.Failed", "/dev/sdb1 is write-protected", kDAReturnNotWritable},
    {"org.freedesktop.UDisks2.Error.Failed",
     "Error mounting at /media/x: No space left on device: wrong fs type", kDAReturnError},
    {"org.freedesktop.UDisks2.Error.SomethingNew", "", kDAReturnError},
    {"org.freedesktop.DBus.Error.ServiceUnknown", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.NameHasNoOwner", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.NoReply", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.Disconnected", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.Timeout", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.Spawn.ChildExited", "", kDAReturnNotReady},
    {"org.freedesktop.DBus.Error.AccessDenied", "", kDAReturnNotPermitted},
    {"org.freedesktop.DBus.Error.InvalidArgs", "", kDAReturnError},
    {"com.example.AlreadyMounted", "No space left on device", kDAReturnError},
    {"", "", kDAReturnError},
};

}  // namespace

TEST(Refusals, HaveAStatus) {
  for (const Row &row : kRows) {
    EXPECT_EQ(refusalStatus(row.error, row.message, true), row.status)
        << row.error << ": " << row.message;
  }
}

TEST(Refusals, OfWhatIsUnknownDependOnWhetherTheObjectIsThere) {
  for (const char *error : {"UnknownMethod", "UnknownInterface"}) {
    const QString name = QStringLiteral("org.freedesktop.DBus.Error.") + error;
    EXPECT_EQ(refusalStatus(name, "No such interface", true), kDAReturnUnsupported);
    EXPECT_EQ(refusalStatus(name, "No such interface", false), kDAReturnNotFound);
    EXPECT_EQ(refusalStatus(name, "Object does not exist at path", true), kDAReturnNotFound);
  }
  EXPECT_EQ(refusalStatus("org.freedesktop.DBus.Error.UnknownObject", "", true), kDAReturnNotFound);
}
