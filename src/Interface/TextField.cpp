#include "Interface/TextField.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QVariantAnimation>

#include "Interface/Announcement.h"
#include "Interface/Look.h"
#include "Interface/PlainText.h"

namespace {

constexpr int kFadeOutMilliseconds = 300;
constexpr int kFadeInMilliseconds = 1000;

}  // namespace

TextField::TextField(QWidget *parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TextField::setStringValue(const QString &text) {
  if (text == stringValue()) return;
  setText(text);
  if (_announcement) _announcement->say(text);
}

void TextField::setAnnounced() {
  if (!_announcement) _announcement = new Announcement(this);
}

void TextField::setAnimatedStringValue(const QString &text) {
  if (text == stringValue()) return;
  const QVariantAnimation *fadeOut = fadeTo(0.0, kFadeOutMilliseconds, QEasingCurve::OutQuad);
  connect(fadeOut, &QVariantAnimation::finished, this, [this, text] {
    setStringValue(text);
    fadeTo(1.0, kFadeInMilliseconds, QEasingCurve::InQuad);
  });
}

QVariantAnimation *TextField::fadeTo(qreal opacity, int milliseconds, QEasingCurve::Type easing) {
  // One animation for each fade: a second animation of the same property would end the first one
  // without a signal, and the first one's text would be lost.
  auto *fade = new QVariantAnimation(this);
  fade->setDuration(milliseconds);
  fade->setEasingCurve(easing);
  fade->setStartValue(_opacity);
  fade->setEndValue(opacity);
  _latestFade = fade;
  connect(fade, &QVariantAnimation::valueChanged, this, [this, fade](const QVariant &value) {
    if (fade != _latestFade) return;
    _opacity = value.toReal();
    update();
  });
  fade->start(QAbstractAnimation::DeleteWhenStopped);
  return fade;
}

void TextField::setDetail(const QString &detail, const QString &ofText) {
  _detail = detail;
  _detailedText = ofText;
}

void TextField::setTextColor(TextColor color) {
  _textColor = color;
  update();
}

QSize TextField::sizeHint() const {
  const QFontMetrics metrics(Look(this).detailFont());
  return {metrics.horizontalAdvance(printable(stringValue())), metrics.lineSpacing()};
}

QSize TextField::minimumSizeHint() const {
  return {0, sizeHint().height()};
}

bool TextField::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const bool isWhole = fits(stringValue(), QFontMetrics(Look(this).detailFont()), width());
  const QString detail = stringValue() == _detailedText ? _detail : QString();
  showPlainToolTip(this, static_cast<QHelpEvent *>(event)->globalPos(),
                   {isWhole ? QString() : stringValue(), detail});
  return true;
}

void TextField::paintEvent(QPaintEvent *) {
  const Look look(this);
  QPainter painter(this);
  const int side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  painter.setOpacity(_opacity);
  painter.setFont(look.detailFont());
  painter.setPen(_textColor == TextColor::Red    ? look.red
                 : _textColor == TextColor::Blue ? look.blue
                                                 : look.dimText);
  painter.drawText(
      rect(), side | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight,
      painter.fontMetrics().elidedText(printable(stringValue()), Qt::ElideMiddle, width()));
}

#include "moc_TextField.cpp"
