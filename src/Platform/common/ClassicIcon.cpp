#include "Platform/common/ClassicIcon.h"

#include <array>

namespace {

constexpr std::array<QRgb, 2> kBlackOnWhite = {0xffffffff, 0xff000000};

constexpr std::array<QRgb, 16> kSixteenColors = {
    0xffffffff, 0xfffcf305, 0xffff6402, 0xffdd0806, 0xfff20884, 0xff4600a5, 0xff0000d4, 0xff02abea,
    0xff1fb714, 0xff006411, 0xff562c05, 0xff90713a, 0xffc0c0c0, 0xff808080, 0xff404040, 0xff000000};

/// The palette: six shades of each colour from white to black, without black itself; then ten
/// shades between those, each of red, green, blue and grey; then black.
QRgb outOf256(int index) {
  constexpr int kCube = 6 * 6 * 6 - 1;
  constexpr std::array<int, 10> kBetween = {0xee, 0xdd, 0xbb, 0xaa, 0x88,
                                            0x77, 0x55, 0x44, 0x22, 0x11};
  const auto cubed = [index](int step) { return 255 - index / step % 6 * 51; };
  if (index < kCube) return qRgb(cubed(36), cubed(6), cubed(1));
  if (index == 255) return qRgb(0, 0, 0);
  const int ramp = (index - kCube) / 10;
  const int shade = kBetween.at(static_cast<size_t>((index - kCube) % 10));
  const auto channel = [&](int number) { return ramp == number || ramp == 3 ? shade : 0; };
  return qRgb(channel(0), channel(1), channel(2));
}

QRgb colorOf(int index, int bits) {
  if (bits == 1) return kBlackOnWhite.at(static_cast<size_t>(index));
  return bits == 4 ? kSixteenColors.at(static_cast<size_t>(index)) : outOf256(index);
}

int numberAt(QByteArrayView bytes, int index, int bits) {
  const int position = index * bits;
  return (static_cast<uchar>(bytes[position / 8]) >> (8 - bits - position % 8)) & ((1 << bits) - 1);
}

}  // namespace

QImage imageFromIndices(QByteArrayView pixels, int bits, QByteArrayView mask, int side) {
  const int count = side * side;
  if (pixels.size() < count * bits / 8) return {};
  const bool hasMask = mask.size() == count / 8;
  QImage image(side, side, QImage::Format_ARGB32);
  for (int index = 0; index < count; ++index) {
    const bool isOpaque = !hasMask || numberAt(mask, index, 1) == 1;
    image.setPixel(index % side, index / side,
                   isOpaque ? colorOf(numberAt(pixels, index, bits), bits) : 0);
  }
  return image;
}
