#include <mach-o/dyld.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>

#include "Platform/ThisMachine.h"

// With this variable in its environment at the start, a program that uses only the second number of
// a version gets "10.16" from the system instead of "11.0" to "26.x".
void prepareProcess(char **arguments) {
  constexpr char kTellsOldVersion[] = "SYSTEM_VERSION_COMPAT";
  if (std::getenv(kTellsOldVersion) != nullptr) return;
  std::array<char, PATH_MAX> program{};
  auto size = static_cast<quint32>(program.size());
  if (_NSGetExecutablePath(program.data(), &size) != 0) return;
  setenv(kTellsOldVersion, "1", 1);
  execv(program.data(), arguments);
}
