#pragma once

// Something that a person should know while it is so: a few lines above the rows, with a hairline
// below. It takes no room while there is nothing to say, and screen readers say what is new.

#include <QLabel>

class Announcement;

class Notice : public QLabel {
  Q_OBJECT

 public:
  explicit Notice(QWidget *parent = nullptr);

  /// Plain text; an empty one takes the notice away.
  void setNotice(const QString &text);

 protected:
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  void updateLook();

  Announcement *_announcement;
};
