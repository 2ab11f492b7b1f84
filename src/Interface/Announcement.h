#pragma once

// What a screen reader says at once, wherever the keyboard is. Screen readers keep quiet about a
// label that changes while nobody is at it; what they do read out is a notification that appears,
// so there is one for them, which nobody sees.
//
//   announcement->say(u"disk0s1 mouted at /media/ada/EFI"_s);

#include <QWidget>

class Announcement : public QWidget {
  Q_OBJECT

 public:
  /// A part of the widget, and silent while that is out of sight.
  explicit Announcement(QWidget *parent);

  /// An empty text takes back the one before.
  void say(const QString &text);

 protected:
  void hideEvent(QHideEvent *event) override;
};
