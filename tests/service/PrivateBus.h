#pragma once

// A message bus for the test alone: no other program is on it, and it starts none. It exits with
// this object, or with the process, even after a crash.

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
  /// Restarts the bus at the same address. All connections are lost.
  void restart();

 private:
  void start();
  void end();

  QTemporaryDir _folder;
  QProcess _daemon;
  QString _address;
};
