#pragma once

// A check box that speaks of its state as 1 (on), 0 (off) and -1 (mixed), and tells a change by a
// person from one by the program.

#include <QCheckBox>

class CheckBox : public QCheckBox {
  Q_OBJECT

 public:
  static constexpr int kOff = 0;
  static constexpr int kOn = 1;
  static constexpr int kMixed = -1;

  explicit CheckBox(const QString &title, QWidget *parent = nullptr);

  int state() const;

  /// Any value but off and mixed is on. Does not emit `acted`.
  void setState(int state);

 signals:
  /// A person has changed the state: with the mouse, the keyboard or a screen reader.
  void acted();

 protected:
  bool hitButton(const QPoint &position) const override;
  void nextCheckState() override;

 private:
  bool _settingState = false;
};
