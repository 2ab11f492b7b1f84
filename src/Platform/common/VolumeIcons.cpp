#include "Platform/common/VolumeIcons.h"

#include <sys/stat.h>

#include <array>

#include "Foundation/Paths.h"
#include "Foundation/PlainFile.h"
#include "Platform/common/IconImage.h"

namespace {

// Icons have some hundred kilobytes, so a larger file is not one.
constexpr qint64 kLargestIcon = 16 * 1024 * 1024;

FileStamp stampOf(const struct stat &status) {
#ifdef __APPLE__
  const timespec changed = status.st_ctimespec;
#else
  const timespec changed = status.st_ctim;
#endif
  const std::array<qint64, 5> stamp = {static_cast<qint64>(status.st_dev),
                                       static_cast<qint64>(status.st_ino), status.st_size,
                                       changed.tv_sec, changed.tv_nsec};
  return QByteArray(reinterpret_cast<const char *>(stamp.data()), sizeof stamp);
}

}  // namespace

IconFile readIconFile(const QString &path, const FileStamp &known) {
  const QByteArray name = bytesOfPath(path);
  struct stat status = {};
  if (lstat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  const FileStamp stamp = stampOf(status);
  if (stamp == known) return {stamp, {}};
  const auto bytes = readPlainFile(name, kLargestIcon, Links::Refused);
  if (const auto *read = std::get_if<QByteArray>(&bytes)) return {stamp, iconFromBytes(*read)};
  return {};
}

FileStamp VolumeIcons::known(const QString &path) const {
  const Known *known = _icons.object(path);
  return known == nullptr ? FileStamp() : known->stamp;
}

std::optional<QImage> VolumeIcons::take(const QString &path, const IconFile &file) {
  if (!file.stamp) {
    _icons.remove(path);
    return std::nullopt;
  }
  if (file.image) {
    const qsizetype kilobytes = 1 + file.image->sizeInBytes() / 1024;
    _icons.insert(path, new Known{*file.stamp, *file.image}, kilobytes);
    return file.image;
  }
  const Known *known = _icons.object(path);
  return known == nullptr ? std::nullopt : std::optional(known->image);
}
