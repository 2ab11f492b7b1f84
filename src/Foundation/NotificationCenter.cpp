#include "Foundation/NotificationCenter.h"

#include <utility>

NotificationCenter &NotificationCenter::defaultCenter() {
  static NotificationCenter center;
  return center;
}

void NotificationCenter::addObserver(const QObject *observer, const QString &name,
                                     Handler handler) {
  std::erase_if(_observers, [](const Observer &each) { return each.owner.isNull(); });
  _observers.push_back({observer, name, std::move(handler)});
}

void NotificationCenter::post(const Notification &notification) {
  const std::vector<Observer> observers = _observers;
  for (const Observer &each : observers) {
    if (each.owner != nullptr && each.name == notification.name) each.handler(notification);
  }
}
