#include "service/PrivateBus.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <csignal>

#include "support/Files.h"

namespace {

constexpr auto kConfiguration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%1/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
    <allow user="*"/>
  </policy>
</busconfig>
)";

}  // namespace

PrivateBus::PrivateBus() {
  const QString configuration = _folder.filePath("bus.conf");
  writeFile(configuration, QString(kConfiguration).arg(_folder.path()).toUtf8());
  _daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
  _daemon.setStandardErrorFile(_folder.filePath("log"));
  _daemon.start("dbus-daemon", {"--nofork", "--print-address", "--config-file=" + configuration});
  while (_daemon.waitForReadyRead(10000) && !_daemon.canReadLine()) continue;
  _address = _daemon.readLine().trimmed();
  EXPECT_FALSE(_address.isEmpty()) << "no bus: " << _daemon.errorString().toStdString();
}

PrivateBus::~PrivateBus() {
  _daemon.kill();
  _daemon.waitForFinished();
}
