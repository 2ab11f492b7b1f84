#include "Idle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTest>

#include "Commands.h"
#include "Report.h"
#include "StartUp.h"

using namespace Qt::StringLiterals;

namespace {

// The process that asks volumes lives ten seconds longer than its last answer.
constexpr int kSettledAfterMilliseconds = 15000;

/// By thread.
QHash<QString, qint64> voluntarySwitches(qint64 process) {
  constexpr QByteArrayView kKey = "\nvoluntary_ctxt_switches:";
  QHash<QString, qint64> switches;
  const QDir tasks(u"/proc/%1/task"_s.arg(process));
  for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile status(tasks.filePath(task + u"/status"_s));
    if (!status.open(QIODevice::ReadOnly)) continue;
    const QByteArray all = status.readAll();
    const qsizetype value = all.indexOf(kKey) + kKey.size();
    const qsizetype end = all.indexOf('\n', value);
    switches.insert(task, all.sliced(value, end - value).trimmed().toLongLong());
  }
  return switches;
}

/// A thread that has ended meanwhile is not counted.
void addSwitches(const TrayProgram &program, const QString &measure, int partitions,
                 Report &report) {
  QTest::qWait(kSettledAfterMilliseconds);
  const auto before = voluntarySwitches(program.process());
  QTest::qWait(kIdleSeconds * 1000);
  const auto after = voluntarySwitches(program.process());
  qint64 switches = 0;
  for (auto thread = after.begin(); thread != after.end(); ++thread)
    switches += *thread - before.value(thread.key());
  report.add(measure, partitions, static_cast<double>(switches));
}

}  // namespace

void measureIdle(int partitions, Report &report) {
  Tray tray;
  const TrayProgram smallest(tray, u"keldra-smallest"_s);
  const TrayProgram keldra(tray, u"keldra"_s);
  addSwitches(keldra, kIdleClosed, partitions, report);
  // A second start opens the popover of the first.
  outputOf(QCoreApplication::applicationDirPath() + u"/keldra"_s, {}, {});
  addSwitches(keldra, kIdleOpen, partitions, report);
  addSwitches(smallest, kIdleSmallest, partitions, report);
}
