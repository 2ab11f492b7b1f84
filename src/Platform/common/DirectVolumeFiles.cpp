#include "Platform/common/DirectVolumeFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "Foundation/Paths.h"

namespace {

bool isFolder(DIR *folder, const dirent &entry) {
  // Calls `stat` only where the file system does not give the type: an entry may be a mount point.
  if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
  struct stat status = {};
  return fstatat(dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISDIR(status.st_mode);
}

}  // namespace

LookAtPath DirectVolumeFiles::look(const QString &path) {
  using enum LookAtPath::Access;
  const QByteArray name = bytesOfPath(path);
  const std::unique_ptr<char, void (*)(void *)> real(realpath(name.constData(), nullptr),
                                                     &std::free);
  if (real == nullptr) {
    const bool isNothing = errno == ENOENT || errno == ENOTDIR || errno == ELOOP ||
                           errno == ENAMETOOLONG || errno == EINVAL;
    return {isNothing ? Nothing : Closed, {}};
  }
  const bool mayList = faccessat(AT_FDCWD, real.get(), R_OK | X_OK, AT_EACCESS) == 0;
  return {mayList ? Open : Closed, pathFromBytes(real.get())};
}

std::optional<QList<FolderEntry>> DirectVolumeFiles::entries(const QString &folder) {
  const std::unique_ptr<DIR, int (*)(DIR *)> listing(opendir(bytesOfPath(folder).constData()),
                                                     closedir);
  if (listing == nullptr) return std::nullopt;
  QList<FolderEntry> entries;
  errno = 0;
  while (const dirent *entry = readdir(listing.get())) {
    const QString name = pathFromBytes(entry->d_name);
    if (name == u"." || name == u"..") continue;
    entries.append({name, isFolder(listing.get(), *entry)});
  }
  if (errno != 0) return std::nullopt;
  return entries;
}

void DirectVolumeFiles::makeFolder(const QString &path, Parents parents) {
  const std::filesystem::path folder(bytesOfPath(path).toStdString());
  std::error_code error;
  if (parents == Parents::Make) {
    std::filesystem::create_directories(folder, error);
  } else {
    std::filesystem::create_directory(folder, error);
  }
}

std::optional<QImage> DirectVolumeFiles::image(const QString &path) {
  return _icons.take(path, readIconFile(path, _icons.known(path)));
}
