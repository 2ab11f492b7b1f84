#include "service/PrivateBus.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <csignal>

PrivateBus::PrivateBus() {
  _daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
  // It finds no programs to start there.
  auto environment = QProcessEnvironment::systemEnvironment();
  for (const char *variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_RUNTIME_DIR"})
    environment.insert(variable, _folder.path());
  _daemon.setProcessEnvironment(environment);
  _daemon.setStandardErrorFile(_folder.filePath("log"));
  _daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address",
                                "--address=unix:path=" + _folder.filePath("bus")});
  while (_daemon.waitForReadyRead(10000) && !_daemon.canReadLine()) continue;
  _address = _daemon.readLine().trimmed();
  EXPECT_FALSE(_address.isEmpty()) << "no bus: " << _daemon.errorString().toStdString();
}

PrivateBus::~PrivateBus() {
  _daemon.kill();
  _daemon.waitForFinished();
}
