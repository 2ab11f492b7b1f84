#pragma once

// A message above the rows that holds for some time: a few lines with a hairline below. It takes no
// room while it is empty, and screen readers read each new text.

#include <QLabel>

class Announcement;

class Notice : public QLabel {
  Q_OBJECT

 public:
  explicit Notice(QWidget *parent = nullptr);

  /// Plain text; an empty text removes the notice.
  void setNotice(const QString &text);

 protected:
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  void updateLook();

  Announcement *_announcement;
};
