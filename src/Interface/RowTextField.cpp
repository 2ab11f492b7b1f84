#include "Interface/RowTextField.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "Interface/Look.h"
#include "Interface/PlainText.h"

RowTextField::RowTextField(QWidget *parent) : QWidget(parent) {}

void RowTextField::setLines(const QStringList &lines) {
  if (lines == _lines) return;
  _lines = lines;
  update();
  emit stringValueChanged();
}

QStringList RowTextField::printableLines() const {
  QStringList result;
  for (const QString &line : _lines) result += printable(line);
  return result;
}

QFont RowTextField::fontOfLine(qsizetype line) const {
  const Look look(this);
  return line == 0 ? look.titleFont() : look.detailFont();
}

bool RowTextField::isShortened() const {
  for (qsizetype line = 0; line < _lines.size(); ++line) {
    if (!fits(_lines[line], QFontMetrics(fontOfLine(line)), width())) return true;
  }
  return false;
}

QSize RowTextField::sizeHint() const {
  const Look look(this);
  return {look.scaled(200), QFontMetrics(look.titleFont()).lineSpacing() +
                                2 * QFontMetrics(look.detailFont()).lineSpacing()};
}

void RowTextField::paintEvent(QPaintEvent *) {
  const Look look(this);
  const QStringList shown = printableLines();
  int textHeight = 0;
  for (qsizetype line = 0; line < shown.size(); ++line) {
    textHeight += QFontMetrics(fontOfLine(line)).lineSpacing();
  }

  QPainter painter(this);
  const int side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  int top = std::max(0, (height() - textHeight) / 2);
  for (qsizetype line = 0; line < shown.size(); ++line) {
    painter.setFont(fontOfLine(line));
    painter.setPen(line == 0 ? look.text : look.dimText);
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect place(0, top, width(), metrics.lineSpacing());
    // Combining marks can be piled on a letter to any height.
    painter.setClipRect(place);
    // Laying out the names of a hundred partitions takes milliseconds, and the room ends before.
    const QString text =
        line == 0 ? metrics.elidedText(shown[line], Qt::ElideMiddle, width())
                  : metrics.elidedText(shown[line].left(width()), Qt::ElideRight, width());
    // The line's direction does not depend on the names in it.
    painter.drawText(place, side | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight,
                     text);
    top += place.height();
  }
}

#include "moc_RowTextField.cpp"
