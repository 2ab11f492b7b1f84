#include "Platform/common/ChildPrograms.h"

#include <QProcess>

namespace {

constexpr int kNoTimeOut = -1;
constexpr int kEndedBySignal = -1;
constexpr qsizetype kPipeCapacity = 64 * 1024;

}  // namespace

ProgramRun ChildPrograms::run(const QString &path, const QStringList &arguments) {
  ProgramRun run;
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.setStandardInputFile(QProcess::nullDevice());
  // A program that fills the pipe would wait for a reader for ever. So all output is read, and what
  // exceeds the limit is dropped.
  QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, [&] {
    run.output += process.readAllStandardOutput();
    run.output.truncate(kPipeCapacity);
  });
  process.start(path, arguments, QIODevice::ReadOnly);
  process.waitForFinished(kNoTimeOut);
  if (process.error() == QProcess::FailedToStart) {
    run.problem = process.errorString();
  } else {
    const bool hasExited = process.exitStatus() == QProcess::NormalExit;
    run.exitStatus = hasExited ? process.exitCode() : kEndedBySignal;
  }
  return run;
}
