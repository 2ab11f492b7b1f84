#pragma once

#include "Platform/common/FileSystemFiles.h"

/// The system's own files; bundles are read with the system's functions.
class MacSystemFiles final : public FileSystemFiles {
 public:
  /// `root` is put before every path.
  explicit MacSystemFiles(const QString &root) : FileSystemFiles(root), _root(root) {}

  std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                        const QString &type) const override;
  std::optional<QString> driverBundle(const QString &identifier) const override;

 private:
  QString _root;
};
