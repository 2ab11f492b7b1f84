#include "Platform/common/BinaryPropertyList.h"

#include <QVector>
#include <optional>

namespace {

// A version file has some ten objects and some hundred bytes.
constexpr quint64 kMostBytes = 1024 * 1024;
constexpr quint64 kBytesOfAnObject = 100;

enum Kind : quint64 { Data = 0x4, Text = 0x5, WideText = 0x6, Array = 0xA, Dictionary = 0xD };

struct Object {
  QVector<quint64> references;  // to other objects
  quint64 bytes = 0;            // of a text or of data
};

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

  /// Absent when it is malformed, or a text with a NUL.
  std::optional<Object> object(quint64 index) const {
    if (index > size()) return std::nullopt;
    const auto offset = number(_table + index * _offsetSize, _offsetSize);
    const auto marker = offset ? number(*offset, 1) : std::nullopt;
    if (!marker) return std::nullopt;
    const quint64 kind = *marker >> 4;
    const bool hasCount =
        (kind >= Data && kind <= WideText) || (kind >= Array && kind <= Dictionary);
    if (!hasCount) return Object();

    quint64 place = *offset + 1;
    std::optional<quint64> count = *marker & kCountFollows;
    if (count == kCountFollows) {
      const quint64 width = quint64{1} << (number(place, 1).value_or(0) & 0xF);
      count = number(place + 1, width);
      place += 1 + width;
    }
    if (!count || *count > size()) return std::nullopt;
    if (kind < Array) return characters(place, *count, kind);
    const auto references =
        numbers(place, kind == Dictionary ? 2 * *count : *count, _referenceSize);
    return references ? std::optional(Object{*references}) : std::nullopt;
  }

 private:
  static constexpr quint64 kCountFollows = 0xF;

  quint64 size() const { return static_cast<quint64>(_bytes.size()); }

  std::optional<Object> characters(quint64 offset, quint64 count, quint64 kind) const {
    const quint64 width = kind == WideText ? 2 : 1;
    const auto characters = numbers(offset, count, width);
    if (!characters || (kind != Data && characters->contains(0))) return std::nullopt;
    return Object{{}, count * width};
  }

  std::optional<QVector<quint64>> numbers(quint64 offset, quint64 count, quint64 width) const {
    QVector<quint64> numbers;
    for (; count > 0; --count, offset += width) {
      const auto each = number(offset, width);
      if (!each) return std::nullopt;
      numbers.append(*each);
    }
    return numbers;
  }

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

bool isSoundBinaryPropertyList(QByteArrayView bytes) {
  const Objects objects(bytes);
  QVector<quint64> waiting = {objects.root()};
  quint64 total = 0;
  while (!waiting.isEmpty()) {
    const auto object = objects.object(waiting.takeLast());
    if (!object) return false;
    waiting += object->references;
    total += kBytesOfAnObject + object->bytes;
    const quint64 expected = kBytesOfAnObject * static_cast<quint64>(waiting.size());
    if (total + expected > kMostBytes) return false;
  }
  return true;
}
