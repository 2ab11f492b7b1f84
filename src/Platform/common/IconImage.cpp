#include "Platform/common/IconImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QVarLengthArray>
#include <QtEndian>
#include <algorithm>

#include "Platform/common/IconRuns.h"
#include "Platform/common/Jpeg2000.h"

namespace {

constexpr qsizetype kHeader = 8;  // of the file and of each entry: a type and a length
constexpr int kMostEntries = 100;
// Enough for the largest icon and, should that not decode, for all smaller ones.
constexpr int kMostPixels = 2 * kLargestIconSide * kLargestIconSide;

struct EntryType {
  QByteArrayView name;
  int side;
  QByteArrayView mask = {};  // the entry with the opacity, for types without one of their own
};

// What a type holds differs between the systems that wrote it, so only the size is believed.
constexpr EntryType kTypes[] = {
    {"ic10", 1024},       {"ic09", 512},         {"ic14", 512}, {"ic08", 256}, {"ic13", 256},
    {"ic07", 128},        {"it32", 128, "t8mk"}, {"icp6", 64},  {"ic12", 64},  {"ih32", 48, "h8mk"},
    {"SB24", 48},         {"icsB", 36},          {"ic05", 32},  {"ic11", 32},  {"icp5", 32, "l8mk"},
    {"il32", 32, "l8mk"}, {"sb24", 24},          {"icsb", 18},  {"ic04", 16},  {"icp4", 16, "s8mk"},
    {"is32", 16, "s8mk"},
};

struct Entry {
  QByteArrayView type;
  QByteArrayView data;
};
using Entries = QVarLengthArray<Entry, 32>;

/// The entries as far as the bytes go: a file that was cut off still has its first ones.
Entries entriesOf(QByteArrayView bytes) {
  Entries entries;
  bytes = bytes.sliced(kHeader);
  while (bytes.size() > kHeader && entries.size() < kMostEntries) {
    const qsizetype length = qFromBigEndian<quint32>(bytes.data() + 4);
    if (length < kHeader || length > bytes.size()) break;
    entries.append({bytes.first(4), bytes.sliced(kHeader, length - kHeader)});
    bytes = bytes.sliced(length);
  }
  return entries;
}

QByteArrayView dataOf(const Entries &entries, QByteArrayView type) {
  const auto entry = std::find_if(entries.cbegin(), entries.cend(),
                                  [type](const Entry &each) { return each.type == type; });
  return entry == entries.cend() ? QByteArrayView() : entry->data;
}

constexpr QByteArrayView kPngStart("\x89PNG\r\n\x1a\n", 8);

bool isPng(QByteArrayView bytes) {
  return bytes.startsWith(kPngStart);
}

/// What the pixels need: packed texts and profiles beside them can be a thousand times as large
/// once they are unpacked.
QByteArray pixelsOnly(QByteArrayView png) {
  constexpr qsizetype kFrame = 12;  // length, name and sum
  QByteArray kept = kPngStart.toByteArray();
  png = png.sliced(kPngStart.size());
  while (png.size() >= kFrame) {
    const qsizetype length = kFrame + qFromBigEndian<quint32>(png.data());
    if (length > png.size()) break;
    const QByteArrayView name = png.sliced(4, 4);
    if (name == "IHDR" || name == "PLTE" || name == "tRNS" || name == "IDAT" || name == "IEND") {
      kept.append(png.first(length));
    }
    png = png.sliced(length);
  }
  return kept;
}

QImage imageFromPng(QByteArrayView bytes) {
  QByteArray pixels = pixelsOnly(bytes);
  QBuffer buffer(&pixels);
  QImageReader reader(&buffer, "png");
  const QSize size = reader.size();
  if (!size.isValid() || size.width() > kLargestIconSide || size.height() > kLargestIconSide) {
    return {};
  }
  return reader.read();
}

QImage imageFromEntry(const Entries &entries, const EntryType &type, QByteArrayView data) {
  if (isPng(data)) return imageFromPng(data);
  if (isJpeg2000(data)) return imageFromJpeg2000(data);
  if (data.startsWith("ARGB")) return imageFromArgbRuns(data.sliced(4), type.side);
  if (type.mask.isEmpty()) return {};
  // The largest of these begins with four bytes that mean nothing.
  if (type.name == "it32") data = data.sliced(qMin<qsizetype>(4, data.size()));
  return imageFromRgbRuns(data, dataOf(entries, type.mask), type.side);
}

}  // namespace

QImage iconFromBytes(const QByteArray &bytes) {
  if (isPng(bytes)) return imageFromPng(bytes);
  if (isJpeg2000(bytes)) return imageFromJpeg2000(bytes);
  if (!bytes.startsWith("icns") || bytes.size() < kHeader) return {};
  const Entries entries = entriesOf(bytes);
  int pixels = 0;
  for (const EntryType &type : kTypes) {
    const QByteArrayView data = dataOf(entries, type.name);
    if (data.isEmpty()) continue;
    const QImage image = imageFromEntry(entries, type, data);
    if (!image.isNull()) return image;
    pixels += type.side * type.side;
    if (pixels > kMostPixels) break;
  }
  return {};
}
