#include "Interface/ScrollBar.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "Interface/Look.h"

ScrollBar::ScrollBar(QWidget *parent) : QScrollBar(Qt::Vertical, parent) {
  setAttribute(Qt::WA_Hover);
}

QSize ScrollBar::sizeHint() const {
  return {Look(this).scaled(12), QScrollBar::sizeHint().height()};
}

void ScrollBar::paintEvent(QPaintEvent *) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const QRectF place =
      style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
  const Look look(this);
  const qreal inset = look.scaled(3);
  const QRectF handle = place.adjusted(inset, inset, -inset, -inset);

  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isSliderDown() || underMouse() ? look.dimText() : look.outline());
  painter.drawRoundedRect(handle, handle.width() / 2, handle.width() / 2);
}
