#include "disks/DiskLab.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

namespace {

QString tool(const QString &name) {
  return QStringLiteral(KELDRA_LAB_TOOLS "/") + name;
}

QString labFile(const QString &name) {
  return qEnvironmentVariable("KELDRA_LAB") + '/' + name;
}

}  // namespace

bool DiskLab::isHere() {
  return !qEnvironmentVariableIsEmpty("KELDRA_LAB");
}

QByteArray DiskLab::run(const QString &program, const QStringList &arguments,
                        const QByteArray &input) {
  QProcess process;
  // A pipe would stay open for as long as a service lives that the program starts.
  process.setStandardErrorFile(labFile("tools.log"), QIODevice::Truncate);
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  const bool ended = process.waitForFinished(60000);
  QFile errors(labFile("tools.log"));
  const bool isRead = errors.open(QIODevice::ReadOnly);
  EXPECT_TRUE(ended && isRead && process.exitCode() == 0)
      << program.toStdString() << ' ' << arguments.join(' ').toStdString() << ": "
      << errors.readAll().constData();
  return process.readAllStandardOutput();
}

QString DiskLab::createDisk(const QString &name, int megabytes, const QByteArray &table) {
  return run(tool("loop-disk"), {"create", name, QString::number(megabytes)}, table).trimmed();
}

void DiskLab::format(const QString &device, const QString &kind, const QString &label) {
  run(tool("loop-disk"), {"format", device, kind, label});
}

void DiskLab::pull(const QString &disk) {
  run(tool("loop-disk"), {"pull", disk});
}

void DiskLab::remove(const QString &disk) {
  run(tool("loop-disk"), {"remove", disk});
}

QString DiskLab::imageFile(const QString &name) {
  return labFile(name + ".img");
}

QString DiskLab::makeFolder(const QString &name) {
  const QString path = labFile("tmp/" + name);
  run("mkdir", {path});
  return path;
}

void DiskLab::startService() {
  run(tool("disk-service"), {"start", "udisksd"});
}

void DiskLab::killService() {
  run(tool("disk-service"), {"kill", "udisksd"});
}

bool DiskLab::isServiceRunning() {
  return QFile::exists(labFile("udisksd.pid"));
}
