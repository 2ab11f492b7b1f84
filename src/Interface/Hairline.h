#pragma once

// The thinnest line that the screen can show, across the popover.

#include <QWidget>

class Hairline : public QWidget {
  Q_OBJECT

 public:
  explicit Hairline(QWidget *parent = nullptr);

 protected:
  void paintEvent(QPaintEvent *event) override;
};
