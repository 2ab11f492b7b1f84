#include <sys/mount.h>

#include <cerrno>

#include "macos/fake/World.h"

int statfs(const char *path, struct statfs *result) {
  const auto &subtypes = fake::Machine::current().fileSystemSubtypes;
  const auto found = subtypes.find(path);
  if (found == subtypes.end()) {
    errno = ENOENT;
    return -1;
  }
  result->f_fssubtype = found->second;
  return 0;
}
