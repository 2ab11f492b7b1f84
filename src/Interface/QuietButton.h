#pragma once

// A button that is a mere word until the pointer or the keyboard comes to it.

#include <QPushButton>

class QuietButton : public QPushButton {
  Q_OBJECT

 public:
  explicit QuietButton(const QString &title, QWidget *parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
};
