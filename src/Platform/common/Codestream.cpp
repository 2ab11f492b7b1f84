#include "Platform/common/Codestream.h"

#include <QtEndian>
#include <optional>

#include "Platform/common/IconImage.h"

namespace {

constexpr qsizetype kLargestCodestream = 4 * kLargestIconSide * kLargestIconSide;  // when plain
constexpr int kMostMarkers = 1000;
constexpr quint32 kMostTiles = 64;
constexpr int kMostLayers = 64;
constexpr int kMostComponents = 4;
constexpr int kHighestPrecision = 16;
constexpr int kSmallestPrecinct = 5;  // as a power of two

enum Marker : quint16 {
  Start = 0xff4f,
  Size = 0xff51,
  Coding = 0xff52,
  ComponentCoding = 0xff53,
  TileLengths = 0xff55,
  PacketLengths = 0xff57,
  TilePacketLengths = 0xff58,
  Quantization = 0xff5c,
  ComponentQuantization = 0xff5d,
  Registration = 0xff63,
  Comment = 0xff64,
  TilePart = 0xff90,
  Data = 0xff93,
  End = 0xffd9,
};

template <typename Number>
Number numberAt(QByteArrayView bytes, qsizetype position) {
  return qFromBigEndian<Number>(bytes.data() + position);
}

/// The segments are without marker and length. Width, height, origin, tiles and their origin, then
/// the components.
bool isModestSize(QByteArrayView segment) {
  constexpr qsizetype kFixed = 36;
  if (segment.size() < kFixed) return false;
  const auto field = [segment](int index) { return numberAt<quint32>(segment, 2 + 4 * index); };
  const quint32 width = field(0);
  const quint32 height = field(1);
  const quint32 tileWidth = field(4);
  const quint32 tileHeight = field(5);
  if (field(2) != 0 || field(3) != 0 || field(6) != 0 || field(7) != 0) return false;
  if (width == 0 || height == 0 || tileWidth == 0 || tileHeight == 0) return false;
  if (width > kLargestIconSide || height > kLargestIconSide) return false;
  const quint32 columns = (width - 1) / tileWidth + 1;
  const quint32 rows = (height - 1) / tileHeight + 1;
  const int components = numberAt<quint16>(segment, kFixed - 2);
  if (columns * rows > kMostTiles || components < 1 || components > kMostComponents) return false;
  if (segment.size() != kFixed + 3 * components) return false;
  for (int index = 0; index < components; ++index) {
    const QByteArrayView component = segment.sliced(kFixed + 3 * index, 3);
    const int precision = (component[0] & 0x7f) + 1;
    if (precision > kHighestPrecision || component[1] != 1 || component[2] != 1) return false;
  }
  return true;
}

/// Behind the style and what else comes before: levels, three bytes, transformation, and a byte for
/// each level's precincts if the style says so.
bool hasModestPrecincts(char style, QByteArrayView parameters) {
  constexpr qsizetype kFixed = 5;
  constexpr int kHasPrecincts = 1;
  if (parameters.size() < kFixed) return false;
  if ((style & kHasPrecincts) == 0) return true;
  for (const char sizes : parameters.sliced(kFixed)) {
    if ((sizes & 0x0f) < kSmallestPrecinct || ((sizes >> 4) & 0x0f) < kSmallestPrecinct) {
      return false;
    }
  }
  return true;
}

bool isModestSegment(quint16 marker, QByteArrayView segment) {
  switch (marker) {
    case Size:
      return isModestSize(segment);
    case Coding:
      return segment.size() > 5 && numberAt<quint16>(segment, 2) <= kMostLayers &&
             hasModestPrecincts(segment[0], segment.sliced(5));
    case ComponentCoding:
      return segment.size() > 2 && hasModestPrecincts(segment[1], segment.sliced(2));
    case TileLengths:
    case PacketLengths:
    case TilePacketLengths:
    case Quantization:
    case ComponentQuantization:
    case Registration:
    case Comment:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool isModestCodestream(QByteArrayView codestream) {
  constexpr qsizetype kMarker = 2;
  if (codestream.size() > kLargestCodestream || codestream.size() < 2 * kMarker) return false;
  if (numberAt<quint16>(codestream, 0) != Start) return false;
  if (numberAt<quint16>(codestream, kMarker) != Size) return false;
  qsizetype position = kMarker;
  qsizetype nextPart = 0;
  for (int markers = 0; markers < kMostMarkers; ++markers) {
    if (position + kMarker > codestream.size()) return true;
    const auto marker = numberAt<quint16>(codestream, position);
    if (marker == End) return true;
    if (marker == Data) {
      if (nextPart == 0) return true;  // the data go on to the end
      if (nextPart <= position) return false;
      position = nextPart;
      continue;
    }
    const QByteArrayView rest = codestream.sliced(position + kMarker);
    if (rest.size() < kMarker) return false;
    const int length = numberAt<quint16>(rest, 0);
    if (length < kMarker || length > rest.size()) return false;
    const QByteArrayView segment = rest.sliced(kMarker, length - kMarker);
    if (marker == TilePart) {
      if (segment.size() != 8) return false;
      const auto partLength = numberAt<quint32>(segment, 2);
      nextPart = partLength == 0 ? 0 : position + partLength;
    } else if (!isModestSegment(marker, segment)) {
      return false;
    }
    position += kMarker + length;
  }
  return false;
}
