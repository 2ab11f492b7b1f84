#include "Platform/common/BinaryPropertyList.h"

#include <QVector>
#include <optional>

namespace {

// A version file has some ten objects.
constexpr quint64 kMostObjects = 10'000;

/// The bytes of a binary property list: objects, a table of their offsets, a trailer that tells
/// where that is. Whatever lies outside is absent.
class Objects {
 public:
  explicit Objects(QByteArrayView bytes) : _bytes(bytes) {
    const auto trailer = static_cast<quint64>(qMax<qsizetype>(0, bytes.size() - 32));
    _offsetSize = number(trailer + 6, 1).value_or(0);
    _referenceSize = number(trailer + 7, 1).value_or(0);
    _root = number(trailer + 16, 8).value_or(0);
    _table = number(trailer + 24, 8).value_or(0);
  }

  quint64 root() const { return _root; }

  /// The objects that this one refers to; absent when it is malformed.
  std::optional<QVector<quint64>> references(quint64 object) const {
    if (object > size()) return std::nullopt;
    const auto offset = number(_table + object * _offsetSize, _offsetSize);
    const auto marker = offset ? number(*offset, 1) : std::nullopt;
    if (!marker) return std::nullopt;
    const quint64 kind = *marker >> 4;
    if (kind < kFirstContainer || kind > kDictionary) return QVector<quint64>();

    quint64 place = *offset + 1;
    std::optional<quint64> count = *marker & 0xF;
    if (count == kCountFollows) {
      const quint64 width = quint64{1} << (number(place, 1).value_or(0) & 0xF);
      count = number(place + 1, width);
      place += 1 + width;
    }
    if (!count || *count > kMostObjects) return std::nullopt;
    QVector<quint64> references;
    for (quint64 left = kind == kDictionary ? 2 * *count : *count; left > 0; --left) {
      const auto reference = number(place, _referenceSize);
      if (!reference) return std::nullopt;
      references.append(*reference);
      place += _referenceSize;
    }
    return references;
  }

 private:
  static constexpr quint64 kFirstContainer = 0xA;
  static constexpr quint64 kDictionary = 0xD;
  static constexpr quint64 kCountFollows = 0xF;

  quint64 size() const { return static_cast<quint64>(_bytes.size()); }

  std::optional<quint64> number(quint64 offset, quint64 width) const {
    if (width == 0 || width > 8 || offset > size() || size() - offset < width) return std::nullopt;
    quint64 value = 0;
    for (quint64 index = offset; index < offset + width; ++index) {
      value = value << 8 | static_cast<uchar>(_bytes[static_cast<qsizetype>(index)]);
    }
    return value;
  }

  QByteArrayView _bytes;
  quint64 _offsetSize, _referenceSize, _root, _table;
};

}  // namespace

bool isBinaryPropertyListBounded(QByteArrayView bytes) {
  const Objects objects(bytes);
  QVector<quint64> waiting = {objects.root()};
  for (quint64 seen = 0; !waiting.isEmpty(); ++seen) {
    const auto references = objects.references(waiting.takeLast());
    if (!references) return false;
    waiting += *references;
    if (seen + static_cast<quint64>(waiting.size()) > kMostObjects) return false;
  }
  return true;
}
