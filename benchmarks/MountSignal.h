#pragma once

// When the disk service's signal of a mount or unmount of one partition reached this process. A
// separate thread listens, so that other work does not delay the signal.

#include <QObject>
#include <QThread>
#include <QVariantMap>
#include <optional>

#include "Time.h"

class MountSignalListener : public QObject {
  Q_OBJECT

 public:
  explicit MountSignalListener(const QString &device);

 signals:
  void heard(Instant when);

 private slots:
  void takeChange(const QString &interface, const QVariantMap &changed);
};

class MountSignal {
 public:
  /// Listens for a device such as "/dev/loop0p1". Throws std::runtime_error when there is no bus.
  explicit MountSignal(const QString &device);
  ~MountSignal();
  MountSignal(const MountSignal &) = delete;
  MountSignal &operator=(const MountSignal &) = delete;

  void forget() { _heard.reset(); }
  /// The first signal since `forget`. Set from the event loop.
  std::optional<Instant> heard() const { return _heard; }

 private:
  MountSignalListener _listener;
  QThread _thread;
  QObject _receiver;
  std::optional<Instant> _heard;
};
