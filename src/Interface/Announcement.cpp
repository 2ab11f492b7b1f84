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
  hide();  // otherwise it would be read again when the parent is shown again
}

#include "moc_Announcement.cpp"
