#pragma once

#include "Platform/common/FileSystemFiles.h"

/// The system files that ship inside the program, for systems that have none of their own: the version
/// file, the caution icon, the pictures of storage media.
class ShippedFiles final : public FileSystemFiles {
 public:
  /// A product version that is given stands in place of the one that ships.
  explicit ShippedFiles(std::optional<QString> productVersion = {});

  QVariantMap propertyList(const QString &path) const override;

 private:
  std::optional<QString> _productVersion;
};
