#include "Platform/common/ShippedFiles.h"

#include <utility>

using namespace Qt::StringLiterals;

// `Q_INIT_RESOURCE` must be used outside of every namespace.
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
