#include "Platform/common/FileSystemFiles.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "Platform/common/IconImage.h"
#include "Platform/common/PropertyList.h"

namespace {

// Version files are a few hundred bytes and icons some hundred kilobytes: whatever is larger is not
// one.
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

bool isPlainFile(const struct stat &status) {
  return S_ISREG(status.st_mode) && status.st_size <= kLargestFile;
}

/// Absent for what is no plain file of a sensible size, also if it has become so since it was looked
/// at.
std::optional<QByteArray> bytesOf(const QString &name) {
  // Opening a pipe would wait for somebody at its other end.
  const int descriptor =
      open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  QFile file;
  if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
    return std::nullopt;
  }
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !isPlainFile(status)) return std::nullopt;
  QByteArray bytes = file.read(status.st_size);
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return bytes;
}

}  // namespace

FileSystemFiles::FileSystemFiles(QString root) : _root(std::move(root)) {}

bool FileSystemFiles::exists(const QString &path) const {
  return QFile::exists(_root + path);
}

QVariantMap FileSystemFiles::propertyList(const QString &path) const {
  return read<QVariantMap>(_propertyLists, path, dictionaryFromPropertyList)
      .value_or(QVariantMap());
}

std::optional<QImage> FileSystemFiles::image(const QString &path) const {
  return read<QImage>(_images, path, iconFromBytes);
}

std::optional<QString> FileSystemFiles::bundleResource(const QString &bundle, const QString &name,
                                                       const QString &type) const {
  if (!QFileInfo(_root + bundle).isDir()) return std::nullopt;
  const QString path = bundle + QStringLiteral("/Contents/Resources/") + name + u'.' + type;
  return exists(path) ? path : QString();
}

std::optional<FileSystemFiles::Stamp> FileSystemFiles::stampOf(const QString &file) {
  struct stat status {};
  if (stat(QFile::encodeName(file).constData(), &status) != 0) return std::nullopt;
  if (!isPlainFile(status)) return std::nullopt;
#ifdef __APPLE__
  const timespec changed = status.st_ctimespec;
#else
  const timespec changed = status.st_ctim;
#endif
  return Stamp{static_cast<quint64>(status.st_dev), status.st_ino, status.st_size, changed.tv_sec,
               changed.tv_nsec};
}

template <typename Content>
std::optional<Content> FileSystemFiles::read(Memory<Content> &memory, const QString &path,
                                             Content (*decode)(const QByteArray &)) const {
  const QString file = _root + path;
  const std::optional<Stamp> stamp = stampOf(file);
  const Remembered<Content> *known = memory.object(path);
  if (known != nullptr && known->stamp == stamp) return known->content;
  memory.remove(path);
  const std::optional<QByteArray> bytes = stamp ? bytesOf(file) : std::nullopt;
  if (!bytes) return std::nullopt;
  const Content content = decode(*bytes);
  memory.insert(path, new Remembered<Content>{*stamp, content});
  return content;
}
