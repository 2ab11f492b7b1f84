#include "service/PrivateBus.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QFile>
#include <csignal>

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
  QFile configuration(_folder.filePath("bus.conf"));
  EXPECT_TRUE(configuration.open(QIODevice::WriteOnly));
  configuration.write(QString(kConfiguration).arg(_folder.path()).toUtf8());
  configuration.close();
  _daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
  _daemon.setStandardErrorFile(_folder.filePath("log"));
  _daemon.start("dbus-daemon",
                {"--nofork", "--print-address", "--config-file=" + configuration.fileName()});
  while (_daemon.waitForReadyRead(10000) && !_daemon.canReadLine()) continue;
  _address = _daemon.readLine().trimmed();
  EXPECT_FALSE(_address.isEmpty()) << "no bus: " << _daemon.errorString().toStdString();
}

PrivateBus::~PrivateBus() {
  _daemon.kill();
  _daemon.waitForFinished();
}
