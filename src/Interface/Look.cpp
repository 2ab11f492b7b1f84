#include "Interface/Look.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <optional>

#include "Platform/common/DarkPalette.h"

namespace {

constexpr qreal kUsualFontPixels = 13;

qreal linear(qreal channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

QColor blend(const QColor &ground, const QColor &over, qreal share) {
  const auto channel = [share](float from, float to) {
    return from + (to - from) * static_cast<float>(share);
  };
  return QColor::fromRgbF(channel(ground.redF(), over.redF()),
                          channel(ground.greenF(), over.greenF()),
                          channel(ground.blueF(), over.blueF()));
}

// Cached: most widgets have the same palette, and computing its colours costs more than the rest of
// a painting.
const Colors &colorsOf(const QPalette &palette) {
  static qint64 key = 0;
  static std::optional<Colors> colors;
  if (!colors || key != palette.cacheKey()) colors.emplace(palette);
  key = palette.cacheKey();
  return *colors;
}

}  // namespace

qreal contrastRatio(const QColor &one, const QColor &other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor &ground, const QColor &wished, qreal ratio) {
  const bool towardsWhite = contrastRatio(ground, Qt::white) > contrastRatio(ground, Qt::black);
  const QColor end = towardsWhite ? Qt::white : Qt::black;
  constexpr int kSteps = 40;
  for (int step = 0; step < kSteps; ++step) {
    const QColor shade = blend(wished, end, qreal(step) / kSteps);
    if (contrastRatio(ground, shade) >= ratio) return shade;
  }
  return end;
}

QColor laidOver(const QColor &ground, const QColor &tint) {
  return blend(ground, tint, tint.alphaF());
}

Colors::Colors(const QPalette &palette)
    : isDark(hasDarkWindows(palette)),
      // The palette offers two background colours. In the dark, the less extreme one is easier on
      // the eyes.
      ground(palette.color(isDark ? QPalette::Window : QPalette::Base)),
      accent(readableOn(ground, palette.color(QPalette::Active, QPalette::Highlight))),
      selection(blend(ground, accent, isDark ? 0.16 : 0.09)) {
  // The selection, which rows may have as background, has a little less contrast to the text.
  const auto readable = [this](const QColor &wished) {
    return readableOn(ground, readableOn(selection, wished));
  };
  text = readable(palette.color(isDark ? QPalette::WindowText : QPalette::Text));
  dimText = readable(blend(ground, text, 0.62));
  disabledText = readableOn(ground, blend(ground, text, 0.4));
  hairline = blend(ground, text, 0.11);
  border = blend(ground, text, 0.22);
  outline = readableOn(ground, border, 3.0);
  hover = pressed = text;
  hover.setAlphaF(0.06F);
  pressed.setAlphaF(0.14F);
  buttonFill = isDark ? blend(ground, text, 0.08) : ground;
  red = readableOn(ground, isDark ? QColor(0xff7b72) : QColor(0xc62828));
  blue = readableOn(ground, isDark ? QColor(0x82b1ff) : QColor(0x1f57c3));
}

Look::Look(const QWidget *widget) : Look(widget->palette(), widget->font()) {}

Look::Look(const QPalette &palette, const QFont &font) : Colors(colorsOf(palette)), _font(font) {}

QFont Look::titleFont() const {
  QFont font = _font;
  font.setWeight(QFont::DemiBold);
  return font;
}

QFont Look::detailFont() const {
  constexpr qreal kShare = 0.92;
  QFont font = _font;
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * kShare);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * kShare));
  }
  return font;
}

QFont Look::buttonFont(bool isProminent) const {
  QFont font = detailFont();
  if (isProminent) font.setWeight(QFont::DemiBold);
  return font;
}

int Look::scaled(int atUsualSize) const {
  const qreal factor = std::max(1.0, QFontInfo(_font).pixelSize() / kUsualFontPixels);
  return qRound(atUsualSize * factor);
}

int Look::rowButtonHeight() const {
  return std::max(scaled(27), QFontMetrics(titleFont()).height() + scaled(9));
}

int Look::rowHeight() const {
  const int lines =
      QFontMetrics(titleFont()).lineSpacing() + 2 * QFontMetrics(detailFont()).lineSpacing();
  const int buttons = 2 * rowButtonHeight() + rowButtonGap();
  return std::max(scaled(82), std::max(lines, buttons) + 2 * scaled(11));
}
