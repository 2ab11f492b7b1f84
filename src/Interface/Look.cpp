#include "Interface/Look.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>
#include <algorithm>
#include <cmath>

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

Look::Look(const QWidget *widget) : Look(widget->palette(), widget->font()) {}

Look::Look(const QPalette &palette, const QFont &font) : _palette(palette), _font(font) {
  _dark = palette.color(QPalette::Window).lightnessF() < 0.5F;
  // Of the two grounds that a palette has, the one that is nearer to the middle is the calmer in
  // the dark.
  _ground = palette.color(_dark ? QPalette::Window : QPalette::Base);
}

QColor Look::mixed(const QColor &over, qreal share) const {
  return blend(_ground, over, share);
}

// Rows may have the selection behind them, which is a little nearer to the texts.
QColor Look::readable(const QColor &wished) const {
  return readableOn(_ground, readableOn(selection(), wished));
}

QColor Look::text() const {
  return readable(_palette.color(_dark ? QPalette::WindowText : QPalette::Text));
}

QColor Look::dimText() const {
  return readable(mixed(text(), 0.62));
}

QColor Look::disabledText() const {
  return readableOn(_ground, mixed(text(), 0.4));
}

QColor Look::hairline() const {
  return mixed(text(), 0.11);
}

QColor Look::border() const {
  return mixed(text(), 0.22);
}

QColor Look::outline() const {
  return readableOn(_ground, border(), 3.0);
}

QColor Look::selection() const {
  return mixed(accent(), _dark ? 0.16 : 0.09);
}

QColor Look::hover() const {
  QColor tint = text();
  tint.setAlphaF(0.06F);
  return tint;
}

QColor Look::pressed() const {
  QColor tint = text();
  tint.setAlphaF(0.14F);
  return tint;
}

QColor Look::buttonFill() const {
  return _dark ? mixed(text(), 0.08) : _ground;
}

QColor Look::accent() const {
  return readableOn(_ground, _palette.color(QPalette::Active, QPalette::Highlight));
}

QColor Look::red() const {
  return readableOn(_ground, _dark ? QColor(0xff7b72) : QColor(0xc62828));
}

QColor Look::blue() const {
  return readableOn(_ground, _dark ? QColor(0x82b1ff) : QColor(0x1f57c3));
}

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
