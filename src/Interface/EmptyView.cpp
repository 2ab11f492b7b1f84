#include "Interface/EmptyView.h"

#include <QPainter>

#include "Interface/Look.h"

namespace {

constexpr int kTextFlags = Qt::AlignHCenter | Qt::TextWordWrap;

}  // namespace

void EmptyView::setText(const QString &headline, const QString &advice) {
  _headline = headline;
  _advice = advice;
  setAccessibleName(headline + u'\n' + advice);
  updateGeometry();
  update();
}

QSize EmptyView::sizeHint() const {
  const Look look(this);
  const int margin = look.scaled(56);
  const QRect room(0, 0, look.popoverWidth() - 2 * margin, 10 * margin);
  const auto height = [&](const QFont &font, const QString &text) {
    return QFontMetrics(font).boundingRect(room, kTextFlags, text).height();
  };
  return {look.popoverWidth(), height(look.titleFont(), _headline) + look.scaled(6) +
                                   height(look.detailFont(), _advice) + 2 * margin};
}

void EmptyView::paintEvent(QPaintEvent *) {
  const Look look(this);
  const int margin = look.scaled(56);
  QRect place = rect().adjusted(margin, (height() - sizeHint().height()) / 2 + margin, -margin, 0);
  QPainter painter(this);
  painter.setFont(look.titleFont());
  painter.setPen(look.text);
  QRect headline;
  painter.drawText(place, kTextFlags, _headline, &headline);
  painter.setFont(look.detailFont());
  painter.setPen(look.dimText);
  place.setTop(headline.bottom() + 1 + look.scaled(6));
  painter.drawText(place, kTextFlags, _advice);
}

#include "moc_EmptyView.cpp"
