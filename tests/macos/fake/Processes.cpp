#include <libproc.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "macos/fake/World.h"

using namespace fake;

int proc_listpidspath(uint32_t type, uint32_t, const char *path, uint32_t pathflags, void *buffer,
                      int buffersize) {
  if (type != PROC_ALL_PIDS || pathflags != PROC_LISTPIDSPATH_PATH_IS_VOLUME) {
    report("proc_listpidspath: only all processes that use a volume are known here");
  }
  const auto place = Machine::current().processes.find(path);
  const auto users =
      place == Machine::current().processes.end() ? std::vector<Process>() : place->second;
  // Without a buffer it says how much is surely enough, for all processes of the machine.
  constexpr int kOthers = 20;
  const int size = static_cast<int>(sizeof(int));
  if (buffer == nullptr) return size * (static_cast<int>(users.size()) + kOthers);
  if (buffersize < size) {
    errno = ENOMEM;
    return -1;
  }
  const int count = std::min(static_cast<int>(users.size()), buffersize / size);
  for (int index = 0; index < count; ++index) {
    const std::size_t at = static_cast<std::size_t>(index);
    std::memcpy(static_cast<char *>(buffer) + at * sizeof(int), &users[at].number, sizeof(int));
  }
  return count * size;
}

int proc_name(int number, void *buffer, uint32_t buffersize) {
  constexpr uint32_t kLongestName = 32;
  if (buffersize < kLongestName) {
    errno = ENOMEM;
    return 0;
  }
  for (const auto &[path, users] : Machine::current().processes) {
    for (const Process &each : users) {
      if (each.number != number) continue;
      const std::string name = each.name.substr(0, kLongestName - 1);
      std::memcpy(buffer, name.c_str(), name.size() + 1);
      return static_cast<int>(name.size());
    }
  }
  errno = ESRCH;
  return 0;
}
