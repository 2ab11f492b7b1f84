#pragma once

// Why the disk service refused a request. A dissenter carries one status: either one of the
// service's own return codes or a Unix error number; `daStatus` puts both into words.

#include <QtGlobal>

using DAReturn = quint32;

inline constexpr DAReturn kDAReturnSuccess = 0;
inline constexpr DAReturn kDAReturnError = 0xF8DA0001;
inline constexpr DAReturn kDAReturnBusy = 0xF8DA0002;
inline constexpr DAReturn kDAReturnBadArgument = 0xF8DA0003;
inline constexpr DAReturn kDAReturnExclusiveAccess = 0xF8DA0004;
inline constexpr DAReturn kDAReturnNoResources = 0xF8DA0005;
inline constexpr DAReturn kDAReturnNotFound = 0xF8DA0006;
inline constexpr DAReturn kDAReturnNotMounted = 0xF8DA0007;
inline constexpr DAReturn kDAReturnNotPermitted = 0xF8DA0008;
inline constexpr DAReturn kDAReturnNotPrivileged = 0xF8DA0009;
inline constexpr DAReturn kDAReturnNotReady = 0xF8DA000A;
inline constexpr DAReturn kDAReturnNotWritable = 0xF8DA000B;
inline constexpr DAReturn kDAReturnUnsupported = 0xF8DA000C;

/// The bits that mark a status as a plain Unix error number in its low 14 bits.
inline constexpr DAReturn kUnixErrorBits = 0xC000;

constexpr DAReturn unixErrorStatus(int errorNumber) {
  return kUnixErrorBits | static_cast<DAReturn>(errorNumber);
}

struct Dissenter {
  DAReturn status;
};
