#pragma once

// Icon files as bytes.

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QtEndian>
#include <utility>

inline QByteArray pngOf(const QImage &image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data();
}

inline QByteArray pngOf(int side, const QColor &color) {
  QImage image(side, side, QImage::Format_ARGB32);
  image.fill(color);
  return pngOf(image);
}

inline QByteArray bigEndian(qsizetype number) {
  QByteArray bytes(4, '\0');
  qToBigEndian(static_cast<quint32>(number), bytes.data());
  return bytes;
}

/// An icns file with entries of these types and data.
inline QByteArray icns(const QList<std::pair<QByteArray, QByteArray>> &entries) {
  const auto block = [](const QByteArray &type, const QByteArray &data) {
    return QByteArray(type + bigEndian(8 + data.size()) + data);
  };
  QByteArray all;
  for (const auto &[type, data] : entries) all += block(type, data);
  return block("icns", all);
}
