#include "Interface/RowButton.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <chrono>

#include "Interface/InputGate.h"
#include "Interface/Look.h"
#include "Interface/PlainText.h"

namespace {

constexpr int kFrameMilliseconds = 16;
constexpr qint64 kTurnMilliseconds = 900;

// Where the spinner stands now: a function of the time, so that all spinners turn as one.
int spinnerAngle() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  const qint64 milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
  return static_cast<int>(360 * (milliseconds % kTurnMilliseconds) / kTurnMilliseconds);
}

}  // namespace

RowButton::RowButton(QWidget *parent) : QPushButton(parent) {
  // The table leads the keyboard from button to button, also to rows that have no cell yet.
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_Hover);
  connect(this, &QPushButton::clicked, this, &RowButton::act);
}

void RowButton::setTitle(const QString &title) {
  if (title == _title) return;
  cancelPress();
  _title = title;
  setAccessibleName(title);
  update();
}

void RowButton::setAction(Action action) {
  _action = std::move(action);
}

void RowButton::setBusy(bool busy) {
  if (busy == _busy) return;
  _busy = busy;
  // The spinner's words, for those who do not see it.
  setAccessibleDescription(busy ? tr("Working") : QString());
  updateSpinner();
  update();
}

void RowButton::setProminent(bool prominent) {
  if (prominent == _prominent) return;
  _prominent = prominent;
  update();
}

void RowButton::cancelPress() {
  // A release outside the button ends a press for good: `setDown` alone would let the pointer
  // resume it.
  const QPointF outside(-1, -1);
  QMouseEvent release(QEvent::MouseButtonRelease, outside, mapToGlobal(outside), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
  QPushButton::mouseReleaseEvent(&release);
}

void RowButton::act() {
  // The action may put another one in its own place, or outlive the button.
  const Action action = _action;
  if (!action) return;
  const QPointer<RowButton> self(this);
  ++_acting;
  action(this);
  if (self) --_acting;
}

QSize RowButton::sizeHint() const {
  const Look look(this);
  return {look.rowButtonWidth(), look.rowButtonHeight()};
}

bool RowButton::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip) return QPushButton::event(event);
  const int room = width() - 2 * Look(this).scaled(10);
  if (fits(_title, QFontMetrics(Look(this).titleFont()), room)) {
    event->ignore();  // the row's own tooltip is the better one
  } else {
    showPlainToolTip(this, static_cast<QHelpEvent *>(event)->globalPos(), {_title});
  }
  return true;
}

void RowButton::hideEvent(QHideEvent *event) {
  cancelPress();
  updateSpinner();
  QPushButton::hideEvent(event);
}

void RowButton::showEvent(QShowEvent *event) {
  updateSpinner();
  QPushButton::showEvent(event);
}

void RowButton::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) click();
      return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
      event->ignore();  // they move in the table, not among the buttons
      return;
    default:
      QPushButton::keyPressEvent(event);
  }
}

void RowButton::mouseDoubleClickEvent(QMouseEvent *event) {
  // The first press has been acted on, and the row may show something else by now.
  event->accept();
}

void RowButton::timerEvent(QTimerEvent *event) {
  if (event->timerId() == _spinner.timerId()) {
    update();
    return;
  }
  // A screen reader's Press clicks a moment later, unless it was cancelled or the input is shut out
  // since.
  const QSignalBlocker blocker(!isDown() || InputGate::isClosed() ? this : nullptr);
  QPushButton::timerEvent(event);
}

void RowButton::updateSpinner() {
  if (_busy && isVisible()) {
    _spinner.start(kFrameMilliseconds, Qt::PreciseTimer, this);
  } else {
    _spinner.stop();
  }
}

void RowButton::paintEvent(QPaintEvent *) {
  const Look look(this);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintFrame(painter, look);
  paintTitle(painter, look);
}

QColor RowButton::fill(const Look &look) const {
  if (!isEnabled() || !(isDown() || underMouse())) return look.buttonFill();
  return laidOver(look.buttonFill(), isDown() ? look.pressed() : look.hover());
}

void RowButton::paintFrame(QPainter &painter, const Look &look) const {
  const qreal radius = look.scaled(7);
  const bool accented = _prominent && !_busy && isEnabled();
  const bool ringed = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
  // The ring stands off the frame, which may have the same colour.
  const qreal inset = ringed ? 3.5 : 1.5;
  const QColor stroke = accented ? look.accent() : isEnabled() ? look.border() : look.hairline();
  painter.setPen(QPen(stroke, 1));
  painter.setBrush(fill(look));
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                          radius - inset + 1.5, radius - inset + 1.5);
  if (ringed) {
    painter.setPen(QPen(look.accent(), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
  }
}

void RowButton::paintTitle(QPainter &painter, const Look &look) const {
  const bool accented = _prominent && !_busy && isEnabled();
  QFont font = look.detailFont();
  if (accented) font.setWeight(QFont::DemiBold);
  painter.setFont(font);
  const int spinner = _busy ? look.scaled(11) : 0;
  const int gap = _busy ? look.scaled(6) : 0;
  const int padding = look.scaled(10);
  const int room = width() - 2 * padding - spinner - gap;
  const QFontMetrics metrics = painter.fontMetrics();
  const QString shown = metrics.elidedText(printable(_title), Qt::ElideMiddle, room);
  const int left = (width() - metrics.horizontalAdvance(shown) - spinner - gap) / 2;

  const QColor wished = accented       ? look.accent()
                        : !isEnabled() ? look.disabledText()
                        : _busy        ? look.dimText()
                                       : look.text();
  painter.setPen(readableOn(fill(look), wished));
  painter.drawText(rect().adjusted(left + spinner + gap, 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight,
                   shown);
  if (_busy) {
    paintSpinner(painter, look, QRectF(left, (height() - spinner) / 2.0, spinner, spinner));
  }
}

void RowButton::paintSpinner(QPainter &painter, const Look &look, const QRectF &place) const {
  constexpr int kSixteenths = 16;  // of a degree, the unit of arcs
  const QRectF ring = place.adjusted(1, 1, -1, -1);
  painter.setPen(QPen(look.border(), 2));
  painter.drawEllipse(ring);
  painter.setPen(QPen(look.accent(), 2, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(ring, (90 - spinnerAngle()) * kSixteenths, 100 * kSixteenths);
}
