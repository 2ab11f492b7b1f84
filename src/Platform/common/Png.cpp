#include "Platform/common/Png.h"

#include <zlib.h>

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <array>

namespace {

constexpr QByteArrayView kStart("\x89PNG\r\n\x1a\n", 8);

struct Pixels {
  QByteArray file;    // with the chunks for pixels only
  QByteArray header;  // width, height, bits, kind of colours
  QByteArray packed;
};

/// Keeps only the chunks that the pixels need: compressed texts and profiles may unpack to a
/// thousand times their size.
Pixels pixelsOf(QByteArrayView png) {
  constexpr qsizetype kFrame = 12;  // length, name and checksum
  Pixels pixels{kStart.toByteArray(), {}, {}};
  png = png.sliced(kStart.size());
  while (png.size() >= kFrame) {
    const qsizetype length = qFromBigEndian<quint32>(png.data());
    if (kFrame + length > png.size()) break;
    const QByteArrayView name = png.sliced(4, 4);
    const QByteArrayView data = png.sliced(8, length);
    if (name == "IHDR") pixels.header.append(data);
    if (name == "IDAT") pixels.packed.append(data);
    if (name == "IHDR" || name == "PLTE" || name == "tRNS" || name == "IDAT" || name == "IEND") {
      pixels.file.append(png.first(kFrame + length));
    }
    png = png.sliced(kFrame + length);
  }
  return pixels;
}

/// The most bytes that the pixels can have, a few for each row included. 0 for an invalid header.
qsizetype plainSize(const QByteArray &header, int largestSide) {
  constexpr std::array<int, 7> kChannels = {1, 0, 3, 1, 2, 0, 4};  // by kind of colours
  constexpr int kBesideARow =
      5;  // a filter each, and odd bits, in up to two rows where lines are interlaced
  constexpr int kInterlaced = 14;  // the same for each of the seven pictures of an interlaced file
  if (header.size() != 13) return 0;
  const qint64 width = qFromBigEndian<quint32>(header.constData());
  const qint64 height = qFromBigEndian<quint32>(header.constData() + 4);
  const auto kind = static_cast<uchar>(header[9]);
  if (width > largestSide || height > largestSide || kind >= kChannels.size()) return 0;
  const int bits = static_cast<uchar>(header[8]) * kChannels.at(kind);
  return height * (width * bits / 8 + kBesideARow) + kInterlaced;
}

/// Unpacks, and drops the result, only until `size` is exceeded.
bool unpacksToAtMost(QByteArray packed, qsizetype size) {
  z_stream stream{};
  if (inflateInit(&stream) != Z_OK) return false;
  stream.next_in = reinterpret_cast<Bytef *>(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  std::array<Bytef, 16384> forgotten;
  int result = Z_OK;
  while (result == Z_OK && static_cast<qsizetype>(stream.total_out) <= size) {
    stream.next_out = forgotten.data();
    stream.avail_out = forgotten.size();
    result = inflate(&stream, Z_NO_FLUSH);
  }
  inflateEnd(&stream);
  return static_cast<qsizetype>(stream.total_out) <= size;
}

}  // namespace

bool isPng(QByteArrayView bytes) {
  return bytes.startsWith(kStart);
}

QImage imageFromPng(QByteArrayView bytes, int largestSide) {
  Pixels pixels = pixelsOf(bytes);
  const qsizetype size = plainSize(pixels.header, largestSide);
  if (size == 0 || !unpacksToAtMost(pixels.packed, size)) return {};
  QBuffer buffer(&pixels.file);
  return QImageReader(&buffer, "png").read();
}
