#include "Interface/Hairline.h"

#include <QPainter>

#include "Interface/Look.h"

Hairline::Hairline(QWidget *parent) : QWidget(parent) {
  setFixedHeight(1);
}

void Hairline::paintEvent(QPaintEvent *) {
  QPainter(this).fillRect(QRectF(0, 0, width(), 1 / devicePixelRatio()), Look(this).hairline());
}
