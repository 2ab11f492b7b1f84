// What the system's C library says of a mounted volume: its kind, and the processes that use it.

#include <libproc.h>
#include <sys/mount.h>

#include <cstring>

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
  expect(type == PROC_ALL_PIDS &&
         pathflags == (PROC_LISTPIDSPATH_PATH_IS_VOLUME | PROC_LISTPIDSPATH_EXCLUDE_EVTONLY));
  std::vector<int> users;
  for (const auto &[number, process] : Machine::current().processes) {
    if (process.first == path) users.push_back(number);
  }
  const auto size = std::min(users.size() * sizeof(int), static_cast<std::size_t>(buffersize));
  std::memcpy(buffer, users.data(), size);
  return static_cast<int>(size);
}

int proc_name(int number, void *buffer, uint32_t buffersize) {
  if (buffersize < 32) return 0;  // it insists on room for the longest name
  const std::string &name = Machine::current().processes.at(number).second;
  return static_cast<int>(name.copy(static_cast<char *>(buffer), buffersize));
}
