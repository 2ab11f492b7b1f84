#include "Commands.h"

#include <QProcess>
#include <stdexcept>

#include "Time.h"

namespace {

constexpr int kMinute = 60000;

void waitForSuccess(QProcess &process) {
  const bool hasEnded = process.waitForFinished(kMinute);
  if (hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return;
  throw std::runtime_error(process.program().toStdString() +
                           " failed: " + process.readAllStandardError().toStdString());
}

}  // namespace

QByteArray outputOf(const QString &program, const QStringList &arguments, const QByteArray &input) {
  QProcess process;
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  waitForSuccess(process);
  return process.readAllStandardOutput();
}

double millisecondsOf(const QString &program, const QStringList &arguments) {
  QProcess process;
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  const Instant start = now();
  process.start(program, arguments);
  waitForSuccess(process);
  return millisecondsBetween(start, now());
}
