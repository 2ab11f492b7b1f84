#include "Interface/Style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "Interface/Look.h"

namespace {

constexpr int kBoxSide = 16;
constexpr int kBoxGap = 7;  // between a box and its title
constexpr int kPadding = 10;
constexpr int kScrollBarWidth = 12;
constexpr int kTextFlags = Qt::AlignCenter | Qt::TextSingleLine | Qt::TextHideMnemonic;

/// Whether the widget has the focus and the keyboard is in use.
bool isRinged(const QStyleOption *option) {
  return option->state.testFlags(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange);
}

/// The tint for a control that is pressed or under the pointer.
QColor tint(const Look &look, const QStyleOption *option) {
  if (!option->state.testFlag(QStyle::State_Enabled)) return Qt::transparent;
  if (option->state.testFlag(QStyle::State_Sunken)) return look.pressed;
  return option->state.testFlag(QStyle::State_MouseOver) ? look.hover : Qt::transparent;
}

void paintPanel(QPainter *painter, const QRectF &place, qreal radius, const QPen &pen,
                const QBrush &brush) {
  painter->setPen(pen);
  painter->setBrush(brush);
  painter->drawRoundedRect(place, radius, radius);
}

void paintRing(QPainter *painter, const Look &look, const QRect &place) {
  paintPanel(painter, QRectF(place).adjusted(1, 1, -1, -1), look.scaled(7), QPen(look.accent, 2),
             Qt::NoBrush);
}

void paintText(QPainter *painter, const QStyleOptionButton *option, const QRect &place,
               const QColor &color) {
  painter->setLayoutDirection(option->direction);
  painter->setPen(color);
  painter->drawText(place, kTextFlags, option->text);
}

void paintMark(QPainter *painter, const Look &look, const QRectF &box, bool isMixed) {
  const auto at = [&box](qreal x, qreal y) {
    return box.topLeft() + QPointF(x * box.width(), y * box.height());
  };
  painter->setPen(QPen(look.ground, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(isMixed ? QPolygonF{at(0.27, 0.5), at(0.73, 0.5)}
                                : QPolygonF{at(0.25, 0.53), at(0.43, 0.71), at(0.76, 0.32)});
}

void paintCheckBox(QPainter *painter, const Look &look, const QStyleOptionButton *option) {
  const QRect &whole = option->rect;
  const int side = look.scaled(kBoxSide);
  const int textLeft = side + look.scaled(kBoxGap);
  const auto placed = [option](const QRect &place) {
    return QStyle::visualRect(option->direction, option->rect, place);
  };
  const QRectF box =
      QRectF(placed({0, (whole.height() - side) / 2, side, side})).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool isFilled = !option->state.testFlag(QStyle::State_Off);
  const qreal radius = look.scaled(4);
  paintPanel(painter, box, radius,
             QPen(isFilled || isRinged(option) ? look.accent : look.outline, 1),
             isFilled ? look.accent : look.buttonFill);
  paintPanel(painter, box, radius, Qt::NoPen, tint(look, option));
  if (isFilled) paintMark(painter, look, box, option->state.testFlag(QStyle::State_NoChange));
  const QRect text = placed({textLeft, 0, whole.width() - textLeft, whole.height()});
  paintText(painter, option, text,
            option->state.testFlag(QStyle::State_Enabled) ? look.text : look.disabledText);
  if (isRinged(option)) paintRing(painter, look, text);
}

void paintPushButtonFrame(QPainter *painter, const Look &look, const QStyleOptionButton *option) {
  const bool isEnabled = option->state.testFlag(QStyle::State_Enabled);
  const bool isFlat = option->features.testFlag(QStyleOptionButton::Flat);
  const bool isDefault = option->features.testFlag(QStyleOptionButton::DefaultButton);
  // The ring is apart from the frame, which may have the same colour.
  const qreal inset = isRinged(option) ? 3.5 : 1.5;
  const QRectF frame = QRectF(option->rect).adjusted(inset, inset, -inset, -inset);
  const qreal radius = look.scaled(7) - inset + 1.5;
  if (!isFlat) {
    const QColor stroke = isDefault ? look.accent : isEnabled ? look.border : look.hairline;
    paintPanel(painter, frame, radius, QPen(stroke, 1), look.buttonFill);
  }
  paintPanel(painter, frame, radius, Qt::NoPen, tint(look, option));
  if (isRinged(option)) paintRing(painter, look, option->rect);
}

void paintPushButtonLabel(QPainter *painter, const Look &look, const QStyleOptionButton *option) {
  const bool isDefault = option->features.testFlag(QStyleOptionButton::DefaultButton);
  const QColor color = isDefault                                       ? look.accent
                       : option->state.testFlag(QStyle::State_Enabled) ? look.text
                                                                       : look.disabledText;
  painter->setFont(look.buttonFont(isDefault));
  const QColor ground = laidOver(look.buttonFill, tint(look, option));
  paintText(painter, option, option->rect, readableOn(ground, color));
}

QSize textSize(const QFont &font, const QStyleOption *option) {
  const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
  return QFontMetrics(font).size(kTextFlags, button ? button->text : QString());
}

}  // namespace

Style *Style::shared() {
  static Style *const style = [] {
    auto *made = new Style(QStringLiteral("fusion"));  // Qt always has this style
    made->setParent(qApp);
    return made;
  }();
  return style;
}

void Style::polish(QWidget *widget) {
  QProxyStyle::polish(widget);
  widget->setAttribute(Qt::WA_Hover);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option,
                       const QWidget *widget) const {
  if (metric == PM_ScrollBarExtent && widget) return Look(widget).scaled(kScrollBarWidth);
  return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                              const QWidget *widget) const {
  const Look look(widget);
  if (type == CT_PushButton) {
    const int padding = look.scaled(kPadding);
    return textSize(look.detailFont(), option) + QSize(2 * padding, padding);
  }
  if (type == CT_CheckBox) {
    const QSize text = textSize(widget->font(), option);
    const int side = look.scaled(kBoxSide);
    // Leaves room for a focus ring around the text.
    return {side + look.scaled(kBoxGap) + text.width() + 1,
            std::max(side, text.height()) + look.scaled(4)};
  }
  return QProxyStyle::sizeFromContents(type, option, size, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const {
  const Look look(widget);
  const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
  painter->setRenderHint(QPainter::Antialiasing);
  if (element == CE_CheckBox && button) {
    paintCheckBox(painter, look, button);
  } else if (element == CE_PushButton && button) {
    paintPushButtonFrame(painter, look, button);
    paintPushButtonLabel(painter, look, button);
  } else if (element == CE_PushButtonBevel && button) {
    paintPushButtonFrame(painter, look, button);
  } else if (element == CE_PushButtonLabel && button) {
    paintPushButtonLabel(painter, look, button);
  } else if (element == CE_ShapedFrame) {
    // The thinnest line that the screen can show.
    const qreal thinnest = 1 / widget->devicePixelRatio();
    painter->fillRect(QRectF(0, 0, widget->width(), thinnest), look.hairline);
  } else {
    QProxyStyle::drawControl(element, option, painter, widget);
  }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                               QPainter *painter, const QWidget *widget) const {
  if (control != CC_ScrollBar) {
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  const Look look(widget);
  const qreal inset = look.scaled(3);
  const QRectF handle = QRectF(subControlRect(control, option, SC_ScrollBarSlider, widget))
                            .adjusted(inset, inset, -inset, -inset);
  const bool isMeant = option->state & (State_MouseOver | State_Sunken);
  painter->setRenderHint(QPainter::Antialiasing);
  paintPanel(painter, handle, handle.width() / 2, Qt::NoPen, isMeant ? look.dimText : look.outline);
}

#include "moc_Style.cpp"
