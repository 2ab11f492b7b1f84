#include "Interface/InputGate.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

namespace {

int livingGates = 0;

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::Wheel:
    case QEvent::NativeGesture:
    case QEvent::Gesture:
    case QEvent::GestureOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

// A button that has not seen its release would take the next one for its own.
void letGo(QAbstractButton *button) {
  const QPointF outside(-1, -1);
  QMouseEvent release(QEvent::MouseButtonRelease, outside, button->mapToGlobal(outside),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(button, &release);
  button->setDown(false);
}

}  // namespace

InputGate::InputGate() {
  ++livingGates;
  qApp->installEventFilter(this);
}

InputGate::~InputGate() {
  qApp->removeEventFilter(this);
  --livingGates;
  if (isClosed()) return;
  for (QWidget *widget : QApplication::allWidgets()) {
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (button && button->isDown()) letGo(button);
  }
}

bool InputGate::isClosed() {
  return livingGates > 0;
}

bool InputGate::eventFilter(QObject *watched, QEvent *event) {
  // A shortcut's receiver is an action or a shortcut object. Windows below the widgets keep their
  // account of what is pressed where, so only what has reached a widget is swallowed.
  const bool swallowed =
      event->type() == QEvent::Shortcut || (watched->isWidgetType() && isInput(event->type()));
  if (swallowed) event->accept();
  return swallowed;
}
