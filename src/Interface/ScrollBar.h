#pragma once

// A slim vertical scroll bar: a rounded handle without arrows or a trough.

#include <QScrollBar>

class ScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  explicit ScrollBar(QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
};
