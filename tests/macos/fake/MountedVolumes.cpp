// What the system's C library says of a mounted volume: its kind, and the processes that use it.

#include <libproc.h>
#include <sys/mount.h>

#include <algorithm>

#include "macos/fake/World.h"

using namespace fake;

int statfs(const char *path, struct statfs *result) {
  const auto &subtypes = Machine::current().fileSystemSubtypes;
  if (!subtypes.contains(path)) return -1;
  result->f_fssubtype = subtypes.at(path);
  return 0;
}

int proc_listpidspath(uint32_t type, uint32_t, const char *path, uint32_t pathflags, void *buffer,
                      int buffersize) {
  expect(type == PROC_ALL_PIDS && pathflags == PROC_LISTPIDSPATH_PATH_IS_VOLUME);
  const auto &users = Machine::current().processes[path];
  const std::size_t room = static_cast<std::size_t>(buffersize) / sizeof(int);
  const std::size_t count = std::min(users.size(), room);
  for (std::size_t at = 0; at < count; ++at) static_cast<int *>(buffer)[at] = users[at].number;
  return static_cast<int>(count * sizeof(int));
}

int proc_name(int number, void *buffer, uint32_t buffersize) {
  if (buffersize < 32) return 0;  // it insists on room for the longest name
  for (const auto &[path, users] : Machine::current().processes) {
    for (const Process &each : users) {
      if (each.number != number) continue;
      return static_cast<int>(each.name.copy(static_cast<char *>(buffer), buffersize));
    }
  }
  return 0;
}
