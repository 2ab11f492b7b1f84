#pragma once

// While a gate lives, what a person does with the mouse, the keyboard, a wheel, a finger or a pen
// does not reach the program's widgets. It is lost, not kept for later: what was meant for a button
// must not reach the button that has taken its place meanwhile. Painting and timers go on, and a
// dialog that is shown all the same can be answered.
//
//   {
//     const InputGate gate;
//     runLoop.run(finished);
//   }
//
// Gates may be nested.

#include <QObject>

class QAbstractButton;

class InputGate : public QObject {
  Q_OBJECT

 public:
  InputGate();
  /// Serves the event loop once, so that input which has come before this is lost as well; then
  /// lets go, without a click, of buttons whose release was lost.
  ~InputGate() override;

  /// Whether a gate lives.
  static bool isClosed();

  bool eventFilter(QObject *watched, QEvent *event) override;
};

/// Lets go of a button that is held down, without a click.
void letGo(QAbstractButton *button);
