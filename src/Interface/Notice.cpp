#include "Interface/Notice.h"

#include <QEvent>
#include <QPainter>

#include "Interface/Announcement.h"
#include "Interface/Look.h"
#include "Interface/PlainText.h"

Notice::Notice(QWidget *parent) : QLabel(parent), _announcement(new Announcement(this)) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  hide();
}

void Notice::setNotice(const QString &text) {
  if (this->text() == printable(text)) return;
  setText(printable(text));
  setVisible(!text.isEmpty());
  _announcement->say(text);
}

void Notice::changeEvent(QEvent *event) {
  QLabel::changeEvent(event);
  const bool isOther =
      event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
  if (isOther && isVisible()) updateLook();
}

void Notice::showEvent(QShowEvent *event) {
  updateLook();
  QLabel::showEvent(event);
}

void Notice::paintEvent(QPaintEvent *event) {
  QLabel::paintEvent(event);
  QPainter(this).fillRect(0, height() - 1, width(), 1, Look(this).hairline);
}

void Notice::updateLook() {
  const Look look(this);
  setMargin(0);
  setContentsMargins(look.margin(), look.scaled(10), look.margin(), look.scaled(10));
  QPalette changed = palette();
  if (changed.color(QPalette::WindowText) == look.red) return;
  changed.setColor(QPalette::WindowText, look.red);
  setPalette(changed);
}

#include "moc_Notice.cpp"
