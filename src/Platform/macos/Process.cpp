#include <mach-o/dyld.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>

#include "Platform/ThisMachine.h"

// Programs that know versions by their second number only are told "10.16" instead of "11.0" to
// "26.x" by the system, if this is in their environment when they start.
void prepareProcess(char **arguments) {
  constexpr char kTellsOldVersion[] = "SYSTEM_VERSION_COMPAT";
  if (std::getenv(kTellsOldVersion) != nullptr) return;
  std::array<char, PATH_MAX> program{};
  auto size = static_cast<quint32>(program.size());
  if (_NSGetExecutablePath(program.data(), &size) != 0) return;
  setenv(kTellsOldVersion, "1", 1);
  execv(program.data(), arguments);
}
