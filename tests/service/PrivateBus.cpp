#include "service/PrivateBus.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QFile>
#include <csignal>

PrivateBus::PrivateBus() {
  start();
}

void PrivateBus::start() {
  _daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
  // Without service folders, the bus starts no programs.
  auto environment = QProcessEnvironment::systemEnvironment();
  for (const char *variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_RUNTIME_DIR"})
    environment.insert(variable, _folder.path());
  _daemon.setProcessEnvironment(environment);
  _daemon.setStandardErrorFile(_folder.filePath("log"));
  _daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address",
                                "--address=unix:path=" + _folder.filePath("bus")});
  while (_daemon.waitForReadyRead(10000) && !_daemon.canReadLine()) continue;
  // Without the bus's GUID, so that the address is valid for the next bus too.
  _address = QString::fromUtf8(_daemon.readLine()).section(",guid=", 0, 0);
  EXPECT_FALSE(_address.isEmpty()) << "no bus: " << _daemon.errorString().toStdString();
}

PrivateBus::~PrivateBus() {
  end();
}

void PrivateBus::freeze() {
  kill(static_cast<pid_t>(_daemon.processId()), SIGSTOP);
}

void PrivateBus::thaw() {
  kill(static_cast<pid_t>(_daemon.processId()), SIGCONT);
}

void PrivateBus::restart() {
  end();
  QFile::remove(_folder.filePath("bus"));
  start();
}

void PrivateBus::end() {
  _daemon.kill();
  _daemon.waitForFinished();
}
