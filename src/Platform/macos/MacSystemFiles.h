#pragma once

#include "Platform/common/FileSystemFiles.h"

/// The system's own files, its bundles read as the system reads them.
class MacSystemFiles final : public SystemFiles {
 public:
  /// `root` is put before every path.
  explicit MacSystemFiles(const QString &root) : _root(root), _files(root) {}

  bool exists(const QString &path) const override { return _files.exists(path); }
  QVariantMap propertyList(const QString &path) const override { return _files.propertyList(path); }
  std::optional<QImage> image(const QString &path) const override { return _files.image(path); }
  std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                        const QString &type) const override;

 private:
  QString _root;
  FileSystemFiles _files;
};

/// Where the driver bundle with this identifier is. Absent when there is none.
std::optional<QString> locationOfDriver(const QString &identifier);
