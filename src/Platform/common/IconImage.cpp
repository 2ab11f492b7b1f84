#include "Platform/common/IconImage.h"

#include <QVarLengthArray>
#include <QtEndian>
#include <algorithm>

#include "Platform/common/ClassicIcon.h"
#include "Platform/common/IconRuns.h"
#include "Platform/common/Jpeg2000.h"
#include "Platform/common/Png.h"

namespace {

constexpr qsizetype kHeader = 8;  // of the file and of each entry: a type and a length
constexpr int kMostEntries = 100;
constexpr int kLargestSide = 1024;
// Enough for the largest icon and, if that does not decode, for all smaller ones.
constexpr int kMostPixels = 2 * kLargestSide * kLargestSide;

struct EntryType {
  QByteArrayView name;
  int side;
  QByteArrayView mask = {};  // the entry with the opacity, for types without their own
  int bits = 0;              // of each pixel's index into a palette; 0 for colours
};

// What a type contains depends on the system that wrote it, so only the size is relied on.
constexpr EntryType kTypes[] = {
    {"ic10", 1024},
    {"ic09", 512},
    {"ic14", 512},
    {"ic08", 256},
    {"ic13", 256},
    {"ic07", 128},
    {"it32", 128, "t8mk"},
    {"icp6", 64},
    {"ic12", 64},
    {"ih32", 48, "h8mk"},
    {"SB24", 48},
    {"ich8", 48, "ich#", 8},
    {"ich4", 48, "ich#", 4},
    {"ich#", 48, "ich#", 1},
    {"icsB", 36},
    {"ic05", 32},
    {"ic11", 32},
    {"icp5", 32, "l8mk"},
    {"il32", 32, "l8mk"},
    {"icl8", 32, "ICN#", 8},
    {"icl4", 32, "ICN#", 4},
    {"ICN#", 32, "ICN#", 1},
    {"sb24", 24},
    {"icsb", 18},
    {"ic04", 16},
    {"icp4", 16, "s8mk"},
    {"is32", 16, "s8mk"},
    {"ics8", 16, "ics#", 8},
    {"ics4", 16, "ics#", 4},
    {"ics#", 16, "ics#", 1},
};

struct Entry {
  QByteArrayView type;
  QByteArrayView data;
};
using Entries = QVarLengthArray<Entry, 32>;

/// As many entries as are complete: a file that was cut off still has its first ones.
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

QImage imageFromEntry(const Entries &entries, const EntryType &type, QByteArrayView data) {
  const QByteArrayView mask = dataOf(entries, type.mask);
  // The entry's first half is the icon, the second one the mask.
  if (type.bits > 0)
    return imageFromIndices(data, type.bits, mask.sliced(mask.size() / 2), type.side);
  if (isPng(data)) return imageFromPng(data, type.side);
  if (isJpeg2000(data)) return imageFromJpeg2000(data, type.side);
  if (data.startsWith("ARGB")) return imageFromArgbRuns(data.sliced(4), type.side);
  if (type.mask.isEmpty()) return {};
  // The largest of these begins with four unused bytes.
  if (type.name == "it32") data = data.sliced(qMin<qsizetype>(4, data.size()));
  return imageFromRgbRuns(data, mask, type.side);
}

QImage largestOf(const QByteArray &bytes) {
  if (isPng(bytes)) return imageFromPng(bytes, kLargestSide);
  if (isJpeg2000(bytes)) return imageFromJpeg2000(bytes, kLargestSide);
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

}  // namespace

QImage iconFromBytes(const QByteArray &bytes) {
  const QImage image = largestOf(bytes);
  if (image.width() <= kLargestIconSide && image.height() <= kLargestIconSide) return image;
  return image.scaled(kLargestIconSide, kLargestIconSide, Qt::KeepAspectRatio,
                      Qt::SmoothTransformation);
}
