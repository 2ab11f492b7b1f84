#include "Platform/common/FileSystemFiles.h"

#include <sys/stat.h>

#include <QFile>
#include <QImageReader>
#include <utility>

#include "Platform/common/PropertyList.h"

namespace {

// Version files are a few hundred bytes and icons some hundred kilobytes: whatever is larger is not
// one.
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

QVariantMap readPropertyList(const QString &name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return dictionaryFromPropertyList(file.read(kLargestFile));
}

QImage readLargestImage(const QString &name) {
  QImage largest;
  QImageReader reader(name);
  for (int index = 0; index < qMax(1, reader.imageCount()); ++index) {
    // Plain formats hold one picture and cannot jump; reading them is the same as jumping to the
    // first.
    if (index > 0 && !reader.jumpToImage(index)) break;
    const QImage image = reader.read();
    if (image.width() > largest.width()) largest = image;
  }
  return largest;
}

}  // namespace

FileSystemFiles::FileSystemFiles(QString root) : _root(std::move(root)) {}

bool FileSystemFiles::exists(const QString &path) const {
  return QFile::exists(_root + path);
}

QVariantMap FileSystemFiles::propertyList(const QString &path) const {
  return read<QVariantMap>(_propertyLists, path, readPropertyList);
}

QImage FileSystemFiles::image(const QString &path) const {
  return read<QImage>(_images, path, readLargestImage);
}

/// Absent for what is no plain file of a sensible size: opening a pipe would wait for ever.
std::optional<FileSystemFiles::Stamp> FileSystemFiles::stampOf(const QString &file) {
  struct stat status {};
  if (stat(QFile::encodeName(file).constData(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode) || status.st_size > kLargestFile) return std::nullopt;
#ifdef __APPLE__
  const timespec changed = status.st_ctimespec;
#else
  const timespec changed = status.st_ctim;
#endif
  return Stamp{status.st_dev, status.st_ino, status.st_size, changed.tv_sec, changed.tv_nsec};
}

template <typename Content>
Content FileSystemFiles::read(Memory<Content> &memory, const QString &path,
                              const std::function<Content(const QString &)> &reader) const {
  const QString file = _root + path;
  const std::optional<Stamp> stamp = stampOf(file);
  if (!stamp.has_value()) {
    memory.remove(path);
    return {};
  }
  const auto known = memory.constFind(path);
  if (known != memory.constEnd() && known->stamp == *stamp) return known->content;
  const Content content = reader(file);
  memory.insert(path, {*stamp, content});
  return content;
}
