#include "Interface/Announcement.h"

Announcement::Announcement(QWidget *parent) : QWidget(parent) {
  resize(0, 0);
  hide();
}

void Announcement::say(const QString &text) {
  hide();
  setAccessibleName(text);
  setVisible(!text.isEmpty() && parentWidget()->isVisible());
}

void Announcement::hideEvent(QHideEvent *event) {
  QWidget::hideEvent(event);
  hide();  // or it would be said again when the parent shows again
}

#include "moc_Announcement.cpp"
