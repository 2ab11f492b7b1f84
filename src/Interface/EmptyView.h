#pragma once

// Shown in place of the table while it has no rows: a headline and a line of advice.

#include <QWidget>

class EmptyView : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// Both are plain text. Screen readers read them as one text of two lines.
  void setText(const QString &headline, const QString &advice);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QString _headline;
  QString _advice;
};
