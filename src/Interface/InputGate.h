#pragma once

// While a gate exists, the user's input (mouse, keyboard, wheel, touch, pen) does not reach the
// widgets of the gate's window. It is discarded, not kept for later: a click meant for one button
// must not reach the button that has replaced it. Painting and timers go on, dialogs can be
// answered, and the button of `setWayOut` works.
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
  /// Serves the event loop once, so that input from before this call is discarded as well; then
  /// releases, without a click, the buttons whose release event was discarded.
  ~InputGate() override;

  /// Whether any gate exists.
  static bool isClosed();

  /// This button works while a gate exists, also by keyboard after the Tab key has moved the focus
  /// to it, so that the user can always quit.
  static void setWayOut(QAbstractButton *button);

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  const QWidget *_window;
};

/// Releases a button that is held down, without a click.
void letGo(QAbstractButton *button);
