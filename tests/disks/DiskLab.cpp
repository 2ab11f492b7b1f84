#include "disks/DiskLab.h"

#include <gtest/gtest.h>

#include <QProcess>

#include "support/Files.h"

bool DiskLab::isHere() {
  return !qEnvironmentVariableIsEmpty("KELDRA_LAB");
}

QByteArray DiskLab::run(const QString &program, const QStringList &arguments,
                        const QByteArray &input) {
  QProcess process;
  // A file, because a pipe would stay open as long as a service that the program starts.
  process.setStandardErrorFile(file("tools.log"), QIODevice::Truncate);
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(60000) && process.exitCode() == 0)
      << program.toStdString() << ' ' << arguments.join(' ').toStdString() << ": "
      << contentOf(file("tools.log")).constData();
  return process.readAllStandardOutput();
}

QString DiskLab::createDisk(const QString &name, int megabytes, const QByteArray &table) {
  return run("loop-disk", {"create", name, QString::number(megabytes)}, table).trimmed();
}

void DiskLab::pull(const QString &disk) {
  run("loop-disk", {"pull", disk});
}

QString DiskLab::file(const QString &name) {
  return qEnvironmentVariable("KELDRA_LAB") + '/' + name;
}
