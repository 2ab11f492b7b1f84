#include "Platform/common/Codestream.h"

#include <QtEndian>
#include <algorithm>

namespace {

constexpr int kMostMarkers = 1000;
constexpr int kMostLayers = 64;
constexpr int kSmallestPrecinct = 5;  // as a power of two

enum Marker : quint16 {
  Start = 0xff4f,
  Size = 0xff51,
  Coding = 0xff52,
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

/// After two bytes: width, height and origin, then the same four values of a tile.
bool isOneTile(QByteArrayView segment, quint32 largestSide) {
  if (segment.size() < 34) return false;
  const auto field = [segment](int index) { return numberAt<quint32>(segment, 2 + 4 * index); };
  const quint32 width = field(0);
  const quint32 height = field(1);
  return width <= largestSide && height <= largestSide && field(4) >= width && field(5) >= height;
}

/// After ten fixed bytes, one byte gives each level's precincts, if there are any.
bool hasModestPrecincts(QByteArrayView segment) {
  constexpr qsizetype kFixed = 10;
  return std::all_of(segment.begin() + kFixed, segment.end(), [](char sizes) {
    return (sizes & 0x0f) >= kSmallestPrecinct && ((sizes >> 4) & 0x0f) >= kSmallestPrecinct;
  });
}

/// The segment is given without its marker and length.
bool isModestSegment(quint16 marker, QByteArrayView segment, quint32 largestSide) {
  switch (marker) {
    case Size:
      return isOneTile(segment, largestSide);
    case Coding:
      return segment.size() >= 10 && numberAt<quint16>(segment, 2) <= kMostLayers &&
             hasModestPrecincts(segment);
    case TileLengths:
    case PacketLengths:
    case TilePacketLengths:
    case Quantization:
    case ComponentQuantization:
    case Registration:
    case Comment:
    case TilePart:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool isModestCodestream(QByteArrayView codestream, int largestSide) {
  constexpr qsizetype kMarker = 2;
  const auto side = static_cast<quint32>(largestSide);
  if (codestream.size() < 2 * kMarker || numberAt<quint16>(codestream, 0) != Start) return false;
  qsizetype position = kMarker;
  qsizetype nextPart = 0;
  for (int markers = 0; markers < kMostMarkers; ++markers) {
    if (position + kMarker > codestream.size()) return true;
    const auto marker = numberAt<quint16>(codestream, position);
    if (marker == End) return true;
    if (marker == Data) {
      if (nextPart == 0) return true;  // the data extend to the end
      if (nextPart <= position) return false;
      position = nextPart;
      continue;
    }
    const QByteArrayView rest = codestream.sliced(position + kMarker);
    const int length = rest.size() < kMarker ? 0 : numberAt<quint16>(rest, 0);
    if (length < kMarker || length > rest.size()) return false;
    const QByteArrayView segment = rest.sliced(kMarker, length - kMarker);
    if (!isModestSegment(marker, segment, side)) return false;
    if (marker == TilePart) {
      const auto partLength = segment.size() < 6 ? 1 : numberAt<quint32>(segment, 2);
      nextPart = partLength == 0 ? 0 : position + partLength;
    }
    position += kMarker + length;
  }
  return false;
}
