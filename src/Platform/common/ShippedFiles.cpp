#include "Platform/common/ShippedFiles.h"

#include <utility>

using namespace Qt::StringLiterals;

// Outside of every namespace, as Qt asks.
static void haveSystemFiles() {
  Q_INIT_RESOURCE(system);
}

ShippedFiles::ShippedFiles(std::optional<QString> productVersion)
    : FileSystemFiles(u":/system"_s), _productVersion(std::move(productVersion)) {
  haveSystemFiles();
}

QVariantMap ShippedFiles::propertyList(const QString &path) const {
  QVariantMap dictionary = FileSystemFiles::propertyList(path);
  if (_productVersion && dictionary.contains(u"ProductVersion"_s)) {
    dictionary[u"ProductVersion"_s] = *_productVersion;
  }
  return dictionary;
}
