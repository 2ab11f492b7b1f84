#include "Interface/TextField.h"

#include <QAccessible>
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

TextField::TextField(QWidget *parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TextField::setStringValue(const QString &text) {
  if (text == _stringValue) return;
  const QString former = std::exchange(_stringValue, text);
  update();
  QAccessibleTextUpdateEvent textEvent(this, 0, former, text);
  QAccessible::updateAccessibility(&textEvent);
  // A name of its own hides the text from those who read names only; the description always has it.
  QAccessibleEvent event(this, accessibleName().isEmpty() ? QAccessible::NameChanged
                                                          : QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
  if (_announcement) _announcement->say(text);
}

void TextField::setAnnounced() {
  if (!_announcement) _announcement = new Announcement(this);
}

void TextField::setAnimatedStringValue(const QString &text) {
  if (text == _stringValue) return;
  const QVariantAnimation *fadeOut = fadeTo(0.0, kFadeOutMilliseconds, QEasingCurve::OutQuad);
  connect(fadeOut, &QVariantAnimation::finished, this, [this, text] {
    setStringValue(text);
    fadeTo(1.0, kFadeInMilliseconds, QEasingCurve::InQuad);
  });
}

QVariantAnimation *TextField::fadeTo(qreal opacity, int milliseconds, QEasingCurve::Type easing) {
  // One animation for each fade: a second one on the same property would end the first without a
  // word, and its text would be lost.
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
  return {metrics.horizontalAdvance(printable(_stringValue)), metrics.lineSpacing()};
}

QSize TextField::minimumSizeHint() const {
  return {0, sizeHint().height()};
}

bool TextField::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const bool isWhole = fits(_stringValue, QFontMetrics(Look(this).detailFont()), width());
  const QString detail = _stringValue == _detailedText ? _detail : QString();
  showPlainToolTip(this, static_cast<QHelpEvent *>(event)->globalPos(),
                   {isWhole ? QString() : _stringValue, detail});
  return true;
}

void TextField::paintEvent(QPaintEvent *) {
  const Look look(this);
  QPainter painter(this);
  const int side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  painter.setOpacity(_opacity);
  painter.setFont(look.detailFont());
  painter.setPen(_textColor == TextColor::Red    ? look.red()
                 : _textColor == TextColor::Blue ? look.blue()
                                                 : look.dimText());
  painter.drawText(
      rect(), side | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight,
      painter.fontMetrics().elidedText(printable(_stringValue), Qt::ElideMiddle, width()));
}
