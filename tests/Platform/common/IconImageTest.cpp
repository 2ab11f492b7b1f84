#include "Platform/common/IconImage.h"

#include <gtest/gtest.h>

#include "Platform/common/Codestream.h"
#include "support/Files.h"
#include "support/IconBytes.h"

namespace {

QByteArray sample(const QString &name) {
  return contentOf(KELDRA_TESTS "/fuzz/corpus/icon/" + name);
}

// 16 times 16 pixels of one colour, half transparent.
const QColor kJpegColor(200, 100, 50, 128);
const QByteArray kCodestream = sample("codestream");

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

QByteArray withPrecincts(const QByteArray &sizes) {
  QByteArray stream = kCodestream;
  return stream.replace(stream.indexOf("\xff\x52"), 14,
                        QByteArray::fromHex("ff52000e01000001000104040001" + sizes));
}

void expectColor(const QImage &image, int side, const QColor &color) {
  ASSERT_EQ(image.size(), QSize(side, side));
  const QColor found = image.pixelColor(side - 1, side / 2);
  for (const auto part : {&QColor::red, &QColor::green, &QColor::blue, &QColor::alpha}) {
    EXPECT_NEAR((found.*part)(), (color.*part)(), 3);
  }
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
      {icns({{"icl8", QByteArray(32 * 32, '\xd8')}, {"ICN#", ones}}), 32, QColor(0xdd, 0, 0)},
      {icns({{"icl4", QByteArray(32 * 16, '\x66')}, {"ICN#", halves}}), 32, QColor(0, 0, 0, 0)},
      {icns({{"ICN#", ones}}), 32, Qt::black},
      {icns({{"ics8", QByteArray(16 * 16, '\xfe')}}), 16, QColor(0x11, 0x11, 0x11)},
      {icns({{"ics4", QByteArray(16 * 8, '\x11')}}), 16, QColor(0xfc, 0xf3, 0x05)},
      {icns({{"ics#", halves.first(64)}}), 16, Qt::black},
      {sample("jpeg2000.icns"), 16, kJpegColor},
      {icns({{"ic09", kCodestream}}), 16, kJpegColor},
      {pngOf(64, color), 64, color},
  };
  for (const auto &[file, side, expected] : cases) {
    expectColor(iconFromBytes(file), side, expected);
  }
}

TEST(IconImage, TakesTheLargestPictureThatDecodes) {
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

TEST(IconImage, OnlyThePixelsOfAPngAreRead) {
  QImage image(32, 32, QImage::Format_ARGB32);
  image.fill(Qt::blue);
  image.setText("Comment", QString(4'000'000, 'x'));
  const QByteArray png = pngOf(image);
  ASSERT_LT(png.size(), 10'000) << "the text should be compressed";
  expectColor(iconFromBytes(png), 32, Qt::blue);
  EXPECT_TRUE(iconFromBytes(png).textKeys().isEmpty());
}

TEST(IconImage, TooCostlyPicturesAreRefusedBeforeDecoding) {
  EXPECT_TRUE(iconFromBytes(sample("unpacks-to-more.png")).isNull());
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
