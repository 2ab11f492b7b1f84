#include "StartUp.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>
#include <QThread>
#include <stdexcept>

#include "Measurements.h"
#include "Program.h"
#include "Report.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSettlingMilliseconds = 500;
constexpr double kKilobytesInMegabyte = 1024;

double residentMegabytes(qint64 process) {
  QFile status(u"/proc/%1/status"_s.arg(process));
  if (!status.open(QIODevice::ReadOnly)) throw std::runtime_error("the program has ended");
  const QByteArray all = status.readAll();
  const QByteArray size = all.mid(all.indexOf("VmRSS:") + 6).simplified();
  return size.left(size.indexOf(' ')).toDouble() / kKilobytesInMegabyte;
}

void measureOne(Tray &tray, const QString &program, const QString &time, const QString &memory,
                int partitions, Report &report) {
  const TrayProgram one(tray, program);
  report.add(time, partitions, one.millisecondsToItem());
  QThread::msleep(kSettlingMilliseconds);
  report.add(memory, partitions, residentMegabytes(one.process()));
}

}  // namespace

Tray::Tray() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  const bool isThere =
      bus.registerObject(u"/StatusNotifierWatcher"_s, this,
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties |
                             QDBusConnection::ExportAllSignals) &&
      bus.registerService(u"org.kde.StatusNotifierWatcher"_s);
  if (!isThere) throw std::runtime_error("no tray can be put on the session bus");
}

void Tray::RegisterStatusNotifierItem(const QString & /*item*/) {
  if (!_registered) _registered = now();
}

TrayProgram::TrayProgram(Tray &tray, const QString &program) {
  tray.forget();
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
  _process.setProcessEnvironment(environment);
  const Instant start = now();
  _process.start(QCoreApplication::applicationDirPath() + u'/' + program, QStringList());
  waitUntil([&] { return tray.registered().has_value(); }, u"the item of "_s + program);
  _millisecondsToItem = millisecondsBetween(start, *tray.registered());
}

TrayProgram::~TrayProgram() {
  _process.terminate();
  _process.waitForFinished();
}

void measureStartUp(int partitions, Report &report) {
  Tray tray;
  for (int run = 0; run < kRuns; ++run) {
    measureOne(tray, u"keldra"_s, kStartUp, kResident, partitions, report);
    measureOne(tray, u"keldra-smallest"_s, kSmallestStartUp, kSmallestResident, partitions, report);
  }
}
