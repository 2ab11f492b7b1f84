#include "Platform/common/IconRuns.h"

#include <QByteArray>

namespace {

// A byte below this starts a copy of that many bytes plus one; any other starts a run.
constexpr int kRun = 0x80;
constexpr int kShortestRun = 3;

/// Exactly `length` bytes; empty when there are fewer.
QByteArray withoutRuns(QByteArrayView packed, qsizetype length) {
  QByteArray plain;
  plain.reserve(length);
  while (plain.size() < length && packed.size() > 1) {
    const int lead = static_cast<uchar>(packed.front());
    packed = packed.sliced(1);
    if (lead >= kRun) {
      plain.append(lead - kRun + kShortestRun, packed.front());
      packed = packed.sliced(1);
    } else {
      const qsizetype count = qMin<qsizetype>(lead + 1, packed.size());
      plain.append(packed.first(count));
      packed = packed.sliced(count);
    }
  }
  if (plain.size() < length) return {};
  plain.truncate(length);
  return plain;
}

QImage fromPlanes(const QByteArray &alpha, const QByteArray &colors, int side) {
  const qsizetype plane = qsizetype{side} * side;
  const auto byteAt = [](const QByteArray &bytes, qsizetype index) {
    return static_cast<uchar>(bytes[index]);
  };
  QImage image(side, side, QImage::Format_ARGB32);
  qsizetype pixel = 0;
  for (int y = 0; y < side; ++y) {
    auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
    for (int x = 0; x < side; ++x, ++pixel) {
      line[x] = qRgba(byteAt(colors, pixel), byteAt(colors, pixel + plane),
                      byteAt(colors, pixel + 2 * plane), byteAt(alpha, pixel));
    }
  }
  return image;
}

}  // namespace

QImage imageFromArgbRuns(QByteArrayView bytes, int side) {
  const qsizetype plane = qsizetype{side} * side;
  const QByteArray planes = withoutRuns(bytes, 4 * plane);
  if (planes.isEmpty()) return {};
  return fromPlanes(planes.first(plane), planes.sliced(plane), side);
}

QImage imageFromRgbRuns(QByteArrayView bytes, QByteArrayView mask, int side) {
  const qsizetype plane = qsizetype{side} * side;
  const QByteArray colors =
      bytes.size() == 3 * plane ? bytes.toByteArray() : withoutRuns(bytes, 3 * plane);
  if (colors.isEmpty()) return {};
  const QByteArray opaque(plane, '\xff');
  return fromPlanes(mask.size() == plane ? mask.toByteArray() : opaque, colors, side);
}
