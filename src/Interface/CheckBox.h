#pragma once

// A check box whose state is 1 (on), 0 (off) or -1 (mixed), and which distinguishes a change by the
// user from one by the program.

#include <QCheckBox>

class CheckBox : public QCheckBox {
  Q_OBJECT

 public:
  static constexpr int kOff = 0;
  static constexpr int kOn = 1;
  static constexpr int kMixed = -1;

  explicit CheckBox(const QString &title, QWidget *parent = nullptr);

  int state() const;

  /// Any value except off and mixed means on. Does not emit `acted`.
  void setState(int state);

 signals:
  /// The user has changed the state: with the mouse, the keyboard or a screen reader.
  void acted();

 protected:
  bool hitButton(const QPoint &position) const override;
  void nextCheckState() override;

 private:
  bool _settingState = false;
};
