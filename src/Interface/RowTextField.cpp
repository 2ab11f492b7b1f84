#include "Interface/RowTextField.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "Interface/Look.h"
#include "Interface/PlainText.h"

RowTextField::RowTextField(QWidget *parent) : QWidget(parent) {}

void RowTextField::setStringValue(const QString &text) {
  if (text == _stringValue) return;
  _stringValue = text;
  update();
  emit stringValueChanged();
}

QList<RowTextField::Line> RowTextField::lines() const {
  const Look look(this);
  QList<Line> lines;
  for (const QString &text : _stringValue.split(u'\n')) {
    lines.append({printable(text), lines.isEmpty() ? look.titleFont() : look.detailFont()});
  }
  return lines;
}

bool RowTextField::isShortened() const {
  const QList<Line> all = lines();
  return std::any_of(all.begin(), all.end(), [this](const Line &line) {
    return QFontMetrics(line.font).horizontalAdvance(line.text) > width();
  });
}

QSize RowTextField::sizeHint() const {
  const Look look(this);
  return {look.scaled(200), QFontMetrics(look.titleFont()).lineSpacing() +
                                2 * QFontMetrics(look.detailFont()).lineSpacing()};
}

void RowTextField::paintEvent(QPaintEvent *) {
  const Look look(this);
  const QList<Line> all = lines();
  int textHeight = 0;
  for (const Line &line : all) textHeight += QFontMetrics(line.font).lineSpacing();

  QPainter painter(this);
  int top = std::max(0, (height() - textHeight) / 2);
  for (const Line &line : all) {
    const QFontMetrics metrics(line.font);
    painter.setFont(line.font);
    painter.setPen(&line == &all.front() ? look.text() : look.dimText());
    // A line keeps its direction whatever the names in it are written in.
    painter.drawText(
        QRect(0, top, width(), metrics.lineSpacing()),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight,
        metrics.elidedText(line.text, Qt::ElideRight, width()));
    top += metrics.lineSpacing();
  }
}
