#include "Interface/EmptyView.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "Interface/Look.h"

namespace {

QLabel *makeLabel(QWidget *parent) {
  auto *label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  return label;
}

void setTextColor(QLabel *label, const QColor &color) {
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, color);
  label->setPalette(palette);
}

}  // namespace

EmptyView::EmptyView(QWidget *parent)
    : QWidget(parent), _headline(makeLabel(this)), _advice(makeLabel(this)) {
  const Look look(this);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(look.scaled(56), look.scaled(56), look.scaled(56), look.scaled(56));
  layout->setSpacing(look.scaled(6));
  layout->addWidget(_headline);
  layout->addWidget(_advice);
  updateLook();
}

void EmptyView::setText(const QString &headline, const QString &advice) {
  _headline->setText(headline);
  _advice->setText(advice);
}

QSize EmptyView::sizeHint() const {
  const int width = Look(this).popoverWidth();
  return {width, heightForWidth(width)};
}

void EmptyView::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) updateLook();
}

void EmptyView::updateLook() {
  const Look look(this);
  _headline->setFont(look.titleFont());
  setTextColor(_headline, look.text());
  _advice->setFont(look.detailFont());
  setTextColor(_advice, look.dimText());
}
