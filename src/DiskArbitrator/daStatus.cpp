#include "DiskArbitrator/daStatus.h"

#include <array>
#include <cstring>

namespace {

// In the order of the return codes, which are consecutive from kDAReturnError on.
constexpr std::array kPhrases = {
    "error",          "busy",      "bad argument", "exclusive access",
    "no Resources",   "not found", "not mounted",  "not permitted",
    "not privileged", "not ready", "not writable", "unsupported",
};

}  // namespace

const char *daStatus(DissenterStatus status) {
  constexpr DissenterStatus kErrorNumberBits = 0x3FFF;
  const DissenterStatus errorNumber = status & kErrorNumberBits;
  if (status == (errorNumber | kUnixErrorBits)) return std::strerror(static_cast<int>(errorNumber));

  const DissenterStatus index = status - kDAReturnError;
  return index < kPhrases.size() ? kPhrases[index] : "unknown error";
}
