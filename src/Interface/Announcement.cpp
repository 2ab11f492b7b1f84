#include "Interface/Announcement.h"

#include <QAccessible>
#include <QWidget>

Announcement::Announcement(QWidget *parent) : QObject(parent), _widget(parent) {}

void Announcement::say(const QString &text) {
  _text = text;
  if (!_widget->isVisible()) return;
  QAccessibleEvent event(this, text.isEmpty() ? QAccessible::ObjectHide : QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&event);
}
