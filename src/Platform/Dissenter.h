#pragma once

// Why the disk service refused a request. A dissenter carries one status: either one of the
// service's own return codes or a Unix error number; `daStatus` puts both into words.

#include <QtGlobal>

using DissenterStatus = quint32;

// In a namespace, because a Mac's frameworks have the same names.
namespace disk_service {

inline constexpr DissenterStatus kDAReturnSuccess = 0;
inline constexpr DissenterStatus kDAReturnError = 0xF8DA0001;
inline constexpr DissenterStatus kDAReturnBusy = 0xF8DA0002;
inline constexpr DissenterStatus kDAReturnBadArgument = 0xF8DA0003;
inline constexpr DissenterStatus kDAReturnExclusiveAccess = 0xF8DA0004;
inline constexpr DissenterStatus kDAReturnNoResources = 0xF8DA0005;
inline constexpr DissenterStatus kDAReturnNotFound = 0xF8DA0006;
inline constexpr DissenterStatus kDAReturnNotMounted = 0xF8DA0007;
inline constexpr DissenterStatus kDAReturnNotPermitted = 0xF8DA0008;
inline constexpr DissenterStatus kDAReturnNotPrivileged = 0xF8DA0009;
inline constexpr DissenterStatus kDAReturnNotReady = 0xF8DA000A;
inline constexpr DissenterStatus kDAReturnNotWritable = 0xF8DA000B;
inline constexpr DissenterStatus kDAReturnUnsupported = 0xF8DA000C;

}  // namespace disk_service

using namespace disk_service;

/// The bits that mark a status as a plain Unix error number in its low 14 bits.
inline constexpr DissenterStatus kUnixErrorBits = 0xC000;

constexpr DissenterStatus unixErrorStatus(int errorNumber) {
  return kUnixErrorBits | static_cast<DissenterStatus>(errorNumber);
}

struct Dissenter {
  DissenterStatus status;
};
