#pragma once

#include "Platform/common/FileSystemFiles.h"

/// The system files inside the program, for systems that do not have them: the version file, the
/// caution icon, the pictures of storage media.
class ShippedFiles final : public FileSystemFiles {
 public:
  /// `productVersion`, if given, replaces the version that ships.
  explicit ShippedFiles(std::optional<QString> productVersion = {});

  QVariantMap propertyList(const QString &path) const override;

 private:
  std::optional<QString> _productVersion;
};
