#include "Platform/common/PropertyList.h"

#include <plist/plist.h>

#include <QString>
#include <cstdlib>
#include <memory>

namespace {

// The parser recurses once for each level of nesting, which takes at least seven bytes of XML.
constexpr qsizetype kLargest = 64 * 1024;

using PropertyList = std::unique_ptr<void, decltype(&plist_free)>;
using PlistText = std::unique_ptr<char, decltype(&std::free)>;

PropertyList parse(const QByteArray &bytes) {
  plist_t root = nullptr;
  const auto length = static_cast<uint32_t>(bytes.size());
  if (plist_is_binary(bytes.constData(), length) != 0) {
    plist_from_bin(bytes.constData(), length, &root);
  } else {
    plist_from_xml(bytes.constData(), length, &root);
  }
  return {root, plist_free};
}

QVariant valueOf(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
      char *text = nullptr;
      plist_get_string_val(node, &text);
      return QString::fromUtf8(PlistText(text, &std::free).get());
    }
    case PLIST_BOOLEAN: {
      uint8_t value = 0;
      plist_get_bool_val(node, &value);
      return value != 0;
    }
    case PLIST_UINT: {
      uint64_t value = 0;
      plist_get_uint_val(node, &value);
      return static_cast<quint64>(value);
    }
    default:
      return {};
  }
}

}  // namespace

QVariantMap dictionaryFromPropertyList(const QByteArray &bytes) {
  if (bytes.isEmpty() || bytes.size() > kLargest) return {};
  const PropertyList root = parse(bytes);
  if (root == nullptr || plist_get_node_type(root.get()) != PLIST_DICT) return {};

  plist_dict_iter iterator = nullptr;
  plist_dict_new_iter(root.get(), &iterator);
  const std::unique_ptr<void, decltype(&std::free)> iteratorOwner(iterator, &std::free);

  QVariantMap dictionary;
  while (true) {
    char *key = nullptr;
    plist_t node = nullptr;
    plist_dict_next_item(root.get(), iterator, &key, &node);
    if (node == nullptr) return dictionary;
    const PlistText keyOwner(key, &std::free);
    const QVariant value = valueOf(node);
    if (value.isValid()) dictionary.insert(QString::fromUtf8(key), value);
  }
}
