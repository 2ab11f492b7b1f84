#include "Interface/RowButton.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>
#include <chrono>

#include "Interface/InputGate.h"
#include "Interface/Look.h"
#include "Interface/PlainText.h"
#include "Interface/Style.h"

namespace {

constexpr int kFrameMilliseconds = 16;
constexpr qint64 kTurnMilliseconds = 900;

// The spinner's present angle: a function of the time, so that all spinners turn together.
int spinnerAngle() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  const qint64 milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
  return static_cast<int>(360 * (milliseconds % kTurnMilliseconds) / kTurnMilliseconds);
}

}  // namespace

RowButton::RowButton(QWidget *parent) : QPushButton(parent) {
  Style::applied(this);
  // The table moves the focus from button to button, also to rows that have no cell yet.
  setFocusPolicy(Qt::ClickFocus);
  connect(this, &QPushButton::clicked, this, &RowButton::act);
}

void RowButton::setTitle(const QString &title) {
  if (title == _title) return;
  letGo(this);
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
  // Tells screen readers what the spinner shows.
  setAccessibleDescription(busy ? tr("Working") : QString());
  updateSpinner();
  update();
}

void RowButton::setProminent(bool prominent) {
  if (prominent == _prominent) return;
  _prominent = prominent;
  update();
}

void RowButton::act() {
  // The action may replace itself on the button, or delete the button.
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
    event->ignore();  // the row's own tooltip says more
  } else {
    showPlainToolTip(this, static_cast<QHelpEvent *>(event)->globalPos(), {_title});
  }
  return true;
}

void RowButton::hideEvent(QHideEvent *event) {
  letGo(this);
  updateSpinner();
  QPushButton::hideEvent(event);
}

void RowButton::showEvent(QShowEvent *event) {
  updateSpinner();
  QPushButton::showEvent(event);
}

void RowButton::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
      event->ignore();  // the arrow keys move in the table, not among the buttons
      return;
    default:
      QPushButton::keyPressEvent(event);
  }
}

void RowButton::mouseDoubleClickEvent(QMouseEvent *event) {
  // The first press has already acted, and the row may show something else by now.
  event->accept();
}

void RowButton::timerEvent(QTimerEvent *event) {
  if (event->timerId() == _spinner.timerId()) {
    update();
    return;
  }
  // A screen reader's Press causes the click a moment later. No click if the press was cancelled or
  // an input gate was closed in between.
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

bool RowButton::isProminent() const {
  return _prominent && !_busy && isEnabled();
}

void RowButton::paintEvent(QPaintEvent *) {
  const Look look(this);
  const int spinner = _busy ? look.scaled(11) : 0;
  const int shift = _busy ? spinner + look.scaled(6) : 0;
  const QFontMetrics metrics(look.buttonFont(isProminent()));
  const int room = width() - 2 * look.scaled(10) - shift;
  const QString shown = metrics.elidedText(printable(_title), Qt::ElideMiddle, room);

  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.features.setFlag(QStyleOptionButton::DefaultButton, isProminent());
  style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
  option.text = QString(shown).replace(u'&', QLatin1String("&&"));
  option.direction = Qt::LeftToRight;  // whatever the direction of the names in it
  option.rect.adjust(shift, 0, 0, 0);
  option.state.setFlag(QStyle::State_Enabled, isEnabled() && !_busy);
  style()->drawControl(QStyle::CE_PushButtonLabel, &option, &painter, this);
  if (!_busy) return;
  const int left = (width() - metrics.horizontalAdvance(shown) - shift) / 2;
  paintSpinner(painter, look, QRectF(left, (height() - spinner) / 2.0, spinner, spinner));
}

void RowButton::paintSpinner(QPainter &painter, const Look &look, const QRectF &place) const {
  constexpr int kSixteenths = 16;  // arcs are measured in sixteenths of a degree
  const QRectF ring = place.adjusted(1, 1, -1, -1);
  painter.setPen(QPen(look.border, 2));
  painter.drawEllipse(ring);
  painter.setPen(QPen(look.accent, 2, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(ring, (90 - spinnerAngle()) * kSixteenths, 100 * kSixteenths);
}

#include "moc_RowButton.cpp"
