#include "Platform/common/IconImage.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <QtEndian>

#include "Platform/common/Codestream.h"
#include "support/IconBytes.h"

namespace {

// 16 times 16 pixels of one colour, half transparent, in boxes of a file.
const QByteArray kJpeg2000 = QByteArray::fromHex(
    "0000000c6a5020200d0a870a00000014667479706a703220000000006a703220"
    "0000004f6a703268000000166968647200000010000000100004070700000000"
    "000f636f6c720100000000001000000022636465660004000000000001000100"
    "000002000200000003000300010000000000c56a703263ff4fff510032000000"
    "0000100000001000000000000000000000001000000010000000000000000000"
    "04070101070101070101070101ff52000c00000001000104040001ff5c000740"
    "40484850ff640025000143726561746564206279204f70656e4a504547207665"
    "7273696f6e20322e352e30ff90000a0000000000470001ff93cfb04814005ca3"
    "655db000030908d50a18484bff7fc3e618115054af823d4800018484bfcf9868"
    "115054a3655db0000309097d7c8080808080ffd9");
const QColor kJpegColor(200, 100, 50, 128);
const QByteArray kCodestream = kJpeg2000.sliced(kJpeg2000.indexOf("\xff\x4f\xff\x51"));

QByteArray runs(int value, qsizetype count) {
  QByteArray packed;
  for (; count >= 130; count -= 130) packed += QByteArray("\xff") + char(value);
  for (; count > 0; --count) packed += QByteArray(1, '\0') + char(value);
  return packed;
}

QByteArray planes(const QList<int> &values, int side) {
  QByteArray packed;
  for (const int value : values) packed += runs(value, side * side);
  return packed;
}

/// The codestream with some bytes overwritten, counted from the first occurrence of a marker.
QByteArray patched(const char *marker, qsizetype offset, const QByteArray &hex) {
  QByteArray stream = kCodestream;
  return stream.replace(stream.indexOf(QByteArray::fromHex(marker)) + offset, hex.size() / 2,
                        QByteArray::fromHex(hex));
}

/// A picture of one pixel, with that many zeros behind it.
QByteArray pixelAnd(qsizetype zeros) {
  QByteArray png = pngOf(1, Qt::red);
  const QByteArray data = "IDAT" + qCompress(QByteArray(zeros, '\0')).sliced(4);
  const auto bytes = reinterpret_cast<const Bytef *>(data.constData());
  const auto sum = static_cast<quint32>(crc32(0, bytes, static_cast<uInt>(data.size())));
  const qsizetype start = png.indexOf("IDAT") - 4;
  return png.first(start) + bigEndian(data.size() - 4) + data + bigEndian(sum) + png.last(12);
}

QByteArray withPrecincts(const QByteArray &sizes) {
  QByteArray stream = kCodestream;
  return stream.replace(stream.indexOf("\xff\x52"), 14,
                        QByteArray::fromHex("ff52000e01000001000104040001" + sizes));
}

void expectColor(const QImage &image, int side, const QColor &color) {
  ASSERT_EQ(image.size(), QSize(side, side));
  const QColor found = image.pixelColor(side - 1, side / 2);
  EXPECT_NEAR(found.red(), color.red(), 3);
  EXPECT_NEAR(found.green(), color.green(), 3);
  EXPECT_NEAR(found.blue(), color.blue(), 3);
  EXPECT_NEAR(found.alpha(), color.alpha(), 3);
}

}  // namespace

TEST(IconImage, ReadsEveryKindOfEntry) {
  const QColor color(10, 20, 30, 40);
  const QByteArray mask(128 * 128, char(40));
  const QByteArray ones(2 * 32 * 4, '\xff');
  const QByteArray halves = ones.first(32 * 4) + QByteArray(32 * 4, '\0');
  const QByteArray it32 = QByteArray(4, '\0') + planes({10, 20, 30}, 128);
  const struct {
    QByteArray file;
    int side;
    QColor color;
  } cases[] = {
      {icns({{"il32", planes({10, 20, 30}, 32)}, {"l8mk", mask.first(32 * 32)}}), 32, color},
      {icns({{"t8mk", mask}, {"it32", it32}}), 128, color},
      {icns({{"ih32", QByteArray(3 * 48 * 48, char(70))}}), 48, QColor(70, 70, 70)},
      {icns({{"ic05", "ARGB" + planes({40, 10, 20, 30}, 32)}}), 32, color},
      {icns({{"ic14", pngOf(512, color)}}), kLargestIconSide, color},
      {icns({{"ich8", QByteArray(48 * 48, '\x24')}}), 48, QColor(0xcc, 0xff, 0xff)},
      {icns({{"icl8", QByteArray(32 * 32, '\xd8')}, {"ICN#", ones}}), 32, QColor(0xdd, 0, 0)},
      {icns({{"icl4", QByteArray(32 * 16, '\x66')}, {"ICN#", halves}}), 32, QColor(0, 0, 0, 0)},
      {icns({{"ICN#", ones}}), 32, Qt::black},
      {icns({{"ics8", QByteArray(16 * 16, '\xfe')}}), 16, QColor(0x11, 0x11, 0x11)},
      {icns({{"ics4", QByteArray(16 * 8, '\x11')}}), 16, QColor(0xfc, 0xf3, 0x05)},
      {icns({{"ics#", halves.first(64)}}), 16, Qt::black},
      {icns({{"ic08", kJpeg2000}}), 16, kJpegColor},
      {icns({{"ic09", kCodestream}}), 16, kJpegColor},
      {pngOf(64, color), 64, color},
  };
  for (const auto &[file, side, expected] : cases) {
    expectColor(iconFromBytes(file), side, expected);
  }
}

TEST(IconImage, TakesTheLargestThatDecodes) {
  const QByteArray png = pngOf(256, Qt::green);
  const QByteArray file = icns({{"TOC ", "any"},
                                {"icp4", pngOf(16, Qt::red)},
                                {"ic08", png},
                                {"ic09", "not a picture"},
                                {"ic10", pngOf(1024, Qt::red).first(60)},
                                {"ic07", pngOf(128, Qt::red)}});
  expectColor(iconFromBytes(file), 256, Qt::green);
  const qsizetype end = file.indexOf(png) + png.size();
  expectColor(iconFromBytes(file.first(end)), 256, Qt::green);
  expectColor(iconFromBytes(file.first(end - 1)), 16, Qt::red);
}

TEST(IconImage, WhatIsNoneIsNull) {
  for (const QByteArray &bytes :
       {QByteArray(), QByteArray("icns"), QByteArray("text of some length"), icns({}),
        icns({{"is32", ""}, {"it32", "abc"}}), icns({{"il32", runs(7, 32 * 32)}}),
        icns({{"ic08", QByteArray("\x89PNG\r\n\x1a\n")}}),
        icns({{"ic08", kJpeg2000.first(kJpeg2000.size() - 60)}}), kJpeg2000.first(100)}) {
    EXPECT_TRUE(iconFromBytes(bytes).isNull()) << bytes.left(40).toHex().constData();
  }
}

TEST(IconImage, APngIsReadForItsPixelsAlone) {
  QImage image(32, 32, QImage::Format_ARGB32);
  image.fill(Qt::blue);
  image.setText("Comment", QString(4'000'000, 'x'));
  const QByteArray png = pngOf(image);
  ASSERT_LT(png.size(), 10'000) << "a text that is far larger once it is unpacked";
  expectColor(iconFromBytes(png), 32, Qt::blue);
  EXPECT_TRUE(iconFromBytes(png).textKeys().isEmpty());
}

TEST(IconImage, WhatIsLargerThanItsPixelsIsRefusedBeforeItIsDecoded) {
  EXPECT_FALSE(iconFromBytes(pixelAnd(5)).isNull());
  EXPECT_TRUE(iconFromBytes(pixelAnd(50'000'000)).isNull());
  EXPECT_TRUE(iconFromBytes(pngOf(1025, Qt::red)).isNull());
  EXPECT_TRUE(iconFromBytes(icns({{"ic07", pngOf(129, Qt::red)}})).isNull());
  const std::pair<const char *, QByteArray> streams[] = {
      {"wide", patched("ff51", 6, "00000800")},
      {"tiles of one pixel", patched("ff51", 22, "0000000100000001")},
      {"layers", patched("ff52", 6, "ffff")},
      {"precincts of one pixel", withPrecincts("0000")},
      {"a header without end", patched("ff64", 2, "ffff")},
  };
  for (const auto &[what, stream] : streams) EXPECT_FALSE(isModestCodestream(stream, 1024)) << what;
  EXPECT_TRUE(isModestCodestream(withPrecincts("8877"), 16));
  EXPECT_TRUE(iconFromBytes(patched("ff51", 38, "4000")).isNull()) << "components without data";
}
