#include "Interface/InputGate.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

constexpr const char *kWayOut = "isWayOut";

int livingGates = 0;

bool isInput(const QEvent *event) {
  switch (event->type()) {
    case QEvent::InputMethod:
    case QEvent::Gesture:
    case QEvent::GestureOverride:
      return true;
    case QEvent::Enter:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::HoverLeave:
      // A button must know at all times whether the pointer is over it.
      return false;
    default:
      // Events that the program sends itself are not user input.
      return event->isInputEvent() && event->spontaneous();
  }
}

bool movesFocus(const QEvent *event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent *>(event)->key();
  return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

}  // namespace

void letGo(QAbstractButton *button) {
  // After `setDown` alone, the pointer could resume the press.
  const QPointF outside(-1, -1);
  QMouseEvent release(QEvent::MouseButtonRelease, outside, button->mapToGlobal(outside),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(button, &release);
  button->setDown(false);
}

InputGate::InputGate(const QWidget *window) : _window(window) {
  ++livingGates;
  qApp->installEventFilter(this);
}

InputGate::~InputGate() {
  // Input may still be queued: some run loops serve all other events, but not input.
  if (livingGates == 1) QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
  --livingGates;
  if (isClosed()) return;
  // A button that has missed its release would take the next release as its own.
  for (QWidget *widget : QApplication::allWidgets()) {
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (button && button->isDown()) letGo(button);
  }
}

bool InputGate::isClosed() {
  return livingGates > 0;
}

void InputGate::setWayOut(QAbstractButton *button) {
  button->setProperty(kWayOut, true);
}

bool InputGate::eventFilter(QObject *watched, QEvent *event) {
  // Only a dialog can get input now, and the program waits for its answer.
  if (QApplication::activeModalWidget() != nullptr) return false;
  // A shortcut's receiver is an action or a shortcut object. Native windows track what is pressed
  // where, so only events that have reached a widget are swallowed.
  const auto *widget = qobject_cast<QWidget *>(watched);
  const bool isShut = widget != nullptr && widget->window() == _window && isInput(event) &&
                      !movesFocus(event) && !widget->property(kWayOut).toBool();
  const bool swallowed = event->type() == QEvent::Shortcut || isShut;
  if (swallowed) event->accept();
  return swallowed;
}

#include "moc_InputGate.cpp"
