#pragma once

// What stands in the table's place while it has no rows: a headline and a line of advice.

#include <QWidget>

class QLabel;

class EmptyView : public QWidget {
  Q_OBJECT

 public:
  explicit EmptyView(QWidget *parent = nullptr);

  /// Plain text both.
  void setText(const QString &headline, const QString &advice);

  QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent *event) override;

 private:
  void updateLook();

  QLabel *_headline;
  QLabel *_advice;
};
