#pragma once

// Publish and subscribe by name within the process.
//
//   center.addObserver(this, u"arbitrator"_s, [this](const Notification &note) { show(note); });
//   center.post({u"arbitrator"_s, sender, {{u"note"_s, text}}});
//
// Delivery is synchronous, in the order of registration, on the posting thread (the main thread).

#include <QPointer>
#include <QVariantMap>
#include <functional>
#include <vector>

struct Notification {
  QString name;
  const void *object = nullptr;  // the sender: an opaque identity, never dereferenced
  QVariantMap userInfo = {};
};

class NotificationCenter {
 public:
  using Handler = std::function<void(const Notification &)>;

  /// The process's own center.
  static NotificationCenter &defaultCenter();

  /// Calls `handler` for every later notification of this name, until `observer` is destroyed.
  void addObserver(const QObject *observer, const QString &name, Handler handler);

  /// Every observer has been called when this returns. Observers may add others and post meanwhile.
  void post(const Notification &notification);

 private:
  struct Observer {
    QPointer<const QObject> owner;
    QString name;
    Handler handler;
  };
  std::vector<Observer> _observers;
};
