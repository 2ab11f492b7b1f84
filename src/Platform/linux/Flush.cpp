#include "Platform/linux/Flush.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <cerrno>

#include "Foundation/Paths.h"

namespace {

// Another volume may be mounted on top. Btrfs has a device number for each subvolume, none of which
// is its disk's.
bool isOnDevice(int folder, quint64 device) {
  struct stat status = {};
  struct statfs system = {};
  if (fstat(folder, &status) != 0 || fstatfs(folder, &system) != 0) return false;
  return status.st_dev == device || system.f_type == BTRFS_SUPER_MAGIC;
}

}  // namespace

int flushVolume(const QString &mountPoint, quint64 device) {
  const int folder = open(bytesOfPath(mountPoint).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (folder < 0 && errno != EACCES && errno != EPERM) return errno;
  if (folder < 0) {
    sync();
    return 0;
  }
  int error = ENODEV;
  if (isOnDevice(folder, device)) error = syncfs(folder) == 0 ? 0 : errno;
  close(folder);
  return error;
}
