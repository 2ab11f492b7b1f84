#pragma once

// System files below a root folder on disk.
//
// What a file held is remembered until the file's identity, size or time of change is another one,
// so that an answer is always that of the file as it is now, and asking again costs one system
// call.

#include <QHash>
#include <functional>

#include "Platform/Platform.h"

class FileSystemFiles final : public SystemFiles {
 public:
  /// `root` is put before every path; "" is the machine's own root.
  explicit FileSystemFiles(QString root);

  bool exists(const QString &path) const override;
  QVariantMap propertyList(const QString &path) const override;
  QImage image(const QString &path) const override;

 private:
  struct Stamp {
    quint64 device, inode;
    qint64 size, seconds, nanoseconds;
    bool operator==(const Stamp &) const = default;
  };
  template <typename Content>
  struct Remembered {
    Stamp stamp;
    Content content;
  };
  template <typename Content>
  using Memory = QHash<QString, Remembered<Content>>;

  static std::optional<Stamp> stampOf(const QString &file);
  template <typename Content>
  Content read(Memory<Content> &memory, const QString &path,
               const std::function<Content(const QString &)> &reader) const;

  QString _root;
  mutable Memory<QVariantMap> _propertyLists;
  mutable Memory<QImage> _images;
};
