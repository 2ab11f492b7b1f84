#pragma once

// A message bus of the test's own: no other program is on it, and it starts none. It ends with this
// object, and with the process however that ends.

#include <QProcess>
#include <QTemporaryDir>

class PrivateBus {
 public:
  /// Blocks until the bus answers. Fails the test if it does not.
  PrivateBus();
  ~PrivateBus();

  const QString &address() const { return _address; }

  void freeze();
  void thaw();
  /// At the same address. Everybody on it loses it.
  void restart();

 private:
  void start();
  void end();

  QTemporaryDir _folder;
  QProcess _daemon;
  QString _address;
};
