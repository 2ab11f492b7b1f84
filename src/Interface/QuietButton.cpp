#include "Interface/QuietButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "Interface/Look.h"

QuietButton::QuietButton(const QString &title, QWidget *parent) : QPushButton(title, parent) {
  setAttribute(Qt::WA_Hover);
  setAccessibleName(title);
}

QSize QuietButton::sizeHint() const {
  const Look look(this);
  const QFontMetrics metrics(look.detailFont());
  return {metrics.horizontalAdvance(accessibleName()) + 2 * look.scaled(10),
          metrics.height() + look.scaled(10)};
}

void QuietButton::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) click();
    return;
  }
  QPushButton::keyPressEvent(event);
}

void QuietButton::paintEvent(QPaintEvent *) {
  const Look look(this);
  const qreal radius = look.scaled(6);
  const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  if (isDown() || underMouse()) {
    painter.setBrush(isDown() ? look.pressed() : look.hover());
    painter.drawRoundedRect(frame, radius, radius);
  }
  if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
    painter.setPen(QPen(look.accent(), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame, radius, radius);
  }
  painter.setFont(look.detailFont());
  painter.setPen(isEnabled() ? look.text() : look.disabledText());
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, accessibleName());
}
