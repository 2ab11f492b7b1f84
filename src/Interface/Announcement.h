#pragma once

// A text that a screen reader reads at once, wherever the keyboard focus is. Screen readers ignore
// a label that changes without the focus but read a notification that appears, so this widget is an
// invisible notification.
//
//   announcement->say(u"disk0s1 mouted at /media/ada/EFI"_s);

#include <QWidget>

class Announcement : public QWidget {
  Q_OBJECT

 public:
  /// A child of the widget; silent while the widget is hidden.
  explicit Announcement(QWidget *parent);

  /// An empty text withdraws the previous one.
  void say(const QString &text);

 protected:
  void hideEvent(QHideEvent *event) override;
};
