#include "Platform/linux/Refusals.h"

#include <QHash>
#include <array>
#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kServicePrefix = "org.freedesktop.UDisks2.Error."_L1;
constexpr auto kBusPrefix = "org.freedesktop.DBus.Error."_L1;

const QHash<QString, DissenterStatus> &serviceStatuses() {
  static const QHash<QString, DissenterStatus> statuses{
      {u"AlreadyMounted"_s, kDAReturnBusy},
      {u"DeviceBusy"_s, kDAReturnBusy},
      {u"NotMounted"_s, kDAReturnNotMounted},
      {u"NotAuthorizedCanObtain"_s, kDAReturnNotPrivileged},
      {u"NotAuthorized"_s, kDAReturnNotPermitted},
      {u"OptionNotPermitted"_s, kDAReturnNotPermitted},
      {u"NotAuthorizedDismissed"_s, unixErrorStatus(ECANCELED)},
      {u"Cancelled"_s, unixErrorStatus(ECANCELED)},
      {u"NotSupported"_s, kDAReturnUnsupported},
  };
  return statuses;
}

const QHash<QString, DissenterStatus> &busStatuses() {
  static const QHash<QString, DissenterStatus> statuses{
      {u"ServiceUnknown"_s, kDAReturnNotReady}, {u"NameHasNoOwner"_s, kDAReturnNotReady},
      {u"NoReply"_s, kDAReturnNotReady},        {u"Disconnected"_s, kDAReturnNotReady},
      {u"NoServer"_s, kDAReturnNotReady},       {u"Timeout"_s, kDAReturnNotReady},
      {u"TimedOut"_s, kDAReturnNotReady},       {u"AccessDenied"_s, kDAReturnNotPermitted},
  };
  return statuses;
}

// Some refusals have no error name of their own, so the message decides. The reason is at its end;
// the text before may contain names that users have chosen.
DissenterStatus statusFromMessage(const QString &message) {
  const std::array<std::pair<QLatin1StringView, DissenterStatus>, 3> fragments{{
      {"No space left on device"_L1, unixErrorStatus(ENOSPC)},
      {"Read-only file system"_L1, kDAReturnNotWritable},
      {"write-protected"_L1, kDAReturnNotWritable},
  }};
  const QString reason = message.section(u": "_s, -1);
  for (const auto &[fragment, status] : fragments) {
    if (reason.contains(fragment, Qt::CaseInsensitive)) return status;
  }
  return kDAReturnError;
}

DissenterStatus statusFromBus(const QString &error, const QString &message, bool objectIsThere) {
  if (error == "UnknownObject"_L1) return kDAReturnNotFound;
  if (error == "UnknownMethod"_L1 || error == "UnknownInterface"_L1) {
    const bool isGone = !objectIsThere || message.startsWith("Object does not exist"_L1);
    return isGone ? kDAReturnNotFound : kDAReturnUnsupported;
  }
  if (error.startsWith("Spawn."_L1)) return kDAReturnNotReady;  // the service could not be started
  return busStatuses().value(error, kDAReturnError);
}

}  // namespace

DissenterStatus refusalStatus(const QString &errorName, const QString &message,
                              bool objectIsThere) {
  if (errorName.startsWith(kBusPrefix)) {
    return statusFromBus(errorName.sliced(kBusPrefix.size()), message, objectIsThere);
  }
  if (!errorName.startsWith(kServicePrefix)) return kDAReturnError;
  const QString error = errorName.sliced(kServicePrefix.size());
  if (error == "Failed"_L1) return statusFromMessage(message);
  return serviceStatuses().value(error, kDAReturnError);
}
