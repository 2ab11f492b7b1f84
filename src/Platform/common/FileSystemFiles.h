#pragma once

// System files below a root folder on disk.
//
// What a file held is remembered until the file's identity, size or time of change is another one,
// so that an answer is always that of the file as it is now, and asking again costs one system
// call. Files may be hostile: nothing is waited for, and nothing is read without end.

#include <QCache>

#include "Platform/Platform.h"

class FileSystemFiles final : public SystemFiles {
 public:
  /// `root` is put before every path; "" is the machine's own root.
  explicit FileSystemFiles(QString root);

  bool exists(const QString &path) const override;
  QVariantMap propertyList(const QString &path) const override;
  std::optional<QImage> image(const QString &path) const override;
  std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                        const QString &type) const override;

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
  using Memory = QCache<QString, Remembered<Content>>;
  /// Volumes come and go, and nobody says which files will never be asked for again.
  static constexpr qsizetype kMostRemembered = 64;

  static std::optional<Stamp> stampOf(const QString &file);
  /// Absent when there are no bytes to be had.
  template <typename Content>
  std::optional<Content> read(Memory<Content> &memory, const QString &path,
                              Content (*decode)(const QByteArray &)) const;

  QString _root;
  mutable Memory<QVariantMap> _propertyLists{kMostRemembered};
  mutable Memory<QImage> _images{kMostRemembered};
};
