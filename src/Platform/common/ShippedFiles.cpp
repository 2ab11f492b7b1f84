#include "Platform/common/ShippedFiles.h"

#include <utility>

using namespace Qt::StringLiterals;

// `Q_INIT_RESOURCE` must be used outside of every namespace.
static void haveSystemFiles() {
  Q_INIT_RESOURCE(system);
}

namespace {

template <typename Key, typename Answer, typename Ask>
Answer remembered(QHash<Key, Answer> &answers, const Key &key, Ask ask) {
  const auto known = answers.constFind(key);
  return known != answers.cend() ? *known : *answers.insert(key, ask());
}

}  // namespace

ShippedFiles::ShippedFiles(std::optional<QString> productVersion)
    : _files(u":/system"_s), _productVersion(std::move(productVersion)) {
  haveSystemFiles();
}

bool ShippedFiles::exists(const QString &path) const {
  return remembered(_exists, path, [&] { return _files.exists(path); });
}

QVariantMap ShippedFiles::propertyList(const QString &path) const {
  return remembered(_propertyLists, path, [&] {
    QVariantMap dictionary = _files.propertyList(path);
    if (_productVersion && dictionary.contains(u"ProductVersion"_s)) {
      dictionary[u"ProductVersion"_s] = *_productVersion;
    }
    return dictionary;
  });
}

std::optional<QImage> ShippedFiles::image(const QString &path) const {
  return remembered(_images, path, [&] { return _files.image(path); });
}

std::optional<QString> ShippedFiles::bundleResource(const QString &bundle, const QString &name,
                                                    const QString &type) const {
  return remembered(_resources, QStringList{bundle, name, type},
                    [&] { return _files.bundleResource(bundle, name, type); });
}

std::optional<QString> ShippedFiles::driverBundle(const QString &identifier) const {
  return remembered(_driverBundles, identifier, [&] { return _files.driverBundle(identifier); });
}
