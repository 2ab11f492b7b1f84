#pragma once

// While a gate lives, what a person does with the mouse, the keyboard, a wheel, a finger or a pen
// does not reach the widgets of its window. It is lost, not kept for later: what was meant for a
// button must not reach the button that has taken its place meanwhile. Painting and timers go on,
// a dialog that is shown all the same can be answered, and the way out stays open.
//
//   {
//     const InputGate gate(window);
//     runLoop.run(finished);
//   }
//
// Gates may be nested.

#include <QObject>

class QAbstractButton;
class QWidget;

class InputGate : public QObject {
  Q_OBJECT

 public:
  explicit InputGate(const QWidget *window);
  /// Serves the event loop once, so that input which has come before this is lost as well; then
  /// lets go, without a click, of buttons whose release was lost.
  ~InputGate() override;

  /// Whether a gate lives.
  static bool isClosed();

  /// Nobody may be left with a program that cannot be ended: this button works all the same, once
  /// the Tab key has moved the focus to it, too.
  static void setWayOut(QAbstractButton *button);

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  const QWidget *_window;
};

/// Lets go of a button that is held down, without a click.
void letGo(QAbstractButton *button);
