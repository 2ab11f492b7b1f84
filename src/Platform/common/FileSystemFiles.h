#pragma once

// System files below a root folder, which may be among the program's own resources.
//
// A file's content is cached as long as its size and time stay the same, so that repeated calls cost
// almost nothing.

#include <QDateTime>
#include <QHash>

#include "Platform/Platform.h"

class FileSystemFiles : public SystemFiles {
 public:
  /// `root` is put before every path; "" is the machine's own root.
  explicit FileSystemFiles(QString root);

  bool exists(const QString &path) const override;
  QVariantMap propertyList(const QString &path) const override;
  std::optional<QImage> image(const QString &path) const override;
  std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                        const QString &type) const override;
  std::optional<QString> driverBundle(const QString &identifier) const override;

 private:
  template <typename Content>
  struct Remembered {
    qint64 size;
    QDateTime time;
    Content content;
  };
  template <typename Content>
  using Memory = QHash<QString, Remembered<Content>>;  // by path; system files are few

  /// Absent when the file cannot be read.
  template <typename Content>
  std::optional<Content> read(Memory<Content> &memory, const QString &path,
                              Content (*decode)(const QByteArray &)) const;

  QString _root;
  mutable Memory<QVariantMap> _propertyLists;
  mutable Memory<QImage> _images;
};
