#pragma once

#include <QHash>
#include <QStringList>

#include "Platform/common/FileSystemFiles.h"

/// The system files inside the program, for systems that do not have them: the version file, the
/// caution icon, the pictures of storage media. They cannot change, so every answer is remembered:
/// the list asks for the same few files in each of its rows.
class ShippedFiles final : public SystemFiles {
 public:
  /// `productVersion`, if given, replaces the version that ships.
  explicit ShippedFiles(std::optional<QString> productVersion = {});

  bool exists(const QString &path) const override;
  QVariantMap propertyList(const QString &path) const override;
  std::optional<QImage> image(const QString &path) const override;
  std::optional<QString> bundleResource(const QString &bundle, const QString &name,
                                        const QString &type) const override;
  std::optional<QString> driverBundle(const QString &identifier) const override;

 private:
  FileSystemFiles _files;
  std::optional<QString> _productVersion;
  mutable QHash<QString, bool> _exists;
  mutable QHash<QString, QVariantMap> _propertyLists;
  mutable QHash<QString, std::optional<QImage>> _images;
  mutable QHash<QStringList, std::optional<QString>> _resources;
  mutable QHash<QString, std::optional<QString>> _driverBundles;
};
