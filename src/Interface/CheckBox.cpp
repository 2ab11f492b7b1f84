#include "Interface/CheckBox.h"

#include <QFontMetrics>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <algorithm>

#include "Interface/Look.h"

namespace {

constexpr int kBoxSide = 16;
constexpr int kGap = 7;  // between the box and its title

// Another signal takes the place of the first one, which is deprecated later.
#if QT_VERSION < QT_VERSION_CHECK(6, 7, 0)
constexpr auto kStateChanged = &QCheckBox::stateChanged;
#else
constexpr auto kStateChanged = &QCheckBox::checkStateChanged;
#endif

}  // namespace

CheckBox::CheckBox(const QString &title, QWidget *parent) : QCheckBox(title, parent) {
  setAccessibleName(title);
  setAttribute(Qt::WA_Hover);
  // Not `clicked`: a screen reader's Toggle changes the box without a click.
  connect(this, kStateChanged, this, [this] {
    if (!_settingState) emit acted();
  });
}

int CheckBox::state() const {
  switch (checkState()) {
    case Qt::Unchecked:
      return kOff;
    case Qt::PartiallyChecked:
      return kMixed;
    case Qt::Checked:
      break;
  }
  return kOn;
}

void CheckBox::setState(int state) {
  const QScopedValueRollback<bool> setting(_settingState, true);
  setCheckState(state == kOff     ? Qt::Unchecked
                : state == kMixed ? Qt::PartiallyChecked
                                  : Qt::Checked);
}

void CheckBox::nextCheckState() {
  // Mixed is a state that only the program can set.
  setCheckState(state() == kOn ? Qt::Unchecked : Qt::Checked);
}

QSize CheckBox::sizeHint() const {
  const Look look(this);
  const QFontMetrics metrics(font());
  const int side = look.scaled(kBoxSide);
  return {side + look.scaled(kGap) + metrics.horizontalAdvance(accessibleName()) + 1,
          std::max(side, metrics.height()) + look.scaled(4)};
}

bool CheckBox::hitButton(const QPoint &position) const {
  return rect().contains(position);
}

void CheckBox::paintEvent(QPaintEvent *) {
  const Look look(this);
  const int side = look.scaled(kBoxSide);
  const int top = (height() - side) / 2;
  const auto placed = [this](const QRect &place) {
    return QStyle::visualRect(layoutDirection(), rect(), place);
  };
  const QRectF box = QRectF(placed({0, top, side, side})).adjusted(0.5, 0.5, -0.5, -0.5);
  const qreal radius = look.scaled(4);
  const bool filled = checkState() != Qt::Unchecked;
  const bool ringed = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);

  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(filled || ringed ? look.accent() : look.outline(), ringed ? 2 : 1));
  painter.setBrush(filled ? look.accent() : look.buttonFill());
  painter.drawRoundedRect(box, radius, radius);
  if (isDown() || underMouse()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? look.pressed() : look.hover());
    painter.drawRoundedRect(box, radius, radius);
  }
  if (filled) paintMark(painter, look, box);

  painter.setPen(isEnabled() ? look.text() : look.disabledText());
  painter.setFont(font());
  const QFontMetrics metrics(font());
  const int labelWidth = metrics.horizontalAdvance(accessibleName());
  const QRect label = placed({side + look.scaled(kGap), 0, labelWidth + 1, height()});
  painter.drawText(label, Qt::AlignCenter | Qt::TextSingleLine, accessibleName());
  if (ringed) {
    painter.setPen(QPen(look.accent(), 2));
    const int underline = label.center().y() + metrics.height() / 2;
    painter.drawLine(label.left(), underline, label.left() + labelWidth, underline);
  }
}

void CheckBox::paintMark(QPainter &painter, const Look &look, const QRectF &box) const {
  const auto at = [&box](qreal x, qreal y) {
    return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
  };
  painter.setPen(QPen(look.ground(), box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (checkState() == Qt::PartiallyChecked) {
    painter.drawLine(at(0.27, 0.5), at(0.73, 0.5));
  } else {
    painter.drawPolyline(QPolygonF{at(0.25, 0.53), at(0.43, 0.71), at(0.76, 0.32)});
  }
}
