#include "Platform/common/FileSystemFiles.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "Platform/common/IconImage.h"
#include "Platform/common/PropertyList.h"

using namespace Qt::StringLiterals;

namespace {

// Version files have a few hundred bytes and icons some hundred kilobytes, so a larger file is
// neither.
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

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

template <typename Content>
std::optional<Content> FileSystemFiles::read(Memory<Content> &memory, const QString &path,
                                             Content (*decode)(const QByteArray &)) const {
  const QFileInfo info(_root + path);
  if (!info.isFile() || info.size() > kLargestFile) return std::nullopt;
  const auto known = memory.constFind(path);
  if (known != memory.cend() && known->size == info.size() && known->time == info.lastModified())
    return known->content;
  QFile file(info.filePath());
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const Content content = decode(file.readAll());
  memory.insert(path, {info.size(), info.lastModified(), content});
  return content;
}

std::optional<QString> FileSystemFiles::driverBundle(const QString &identifier) const {
  const QString bundle = u"/System/Library/Extensions/"_s + identifier + u".kext"_s;
  if (identifier.isEmpty() || identifier.contains(u'/') || !exists(bundle)) return std::nullopt;
  return bundle;
}
