#include "Platform/linux/VolumeUsers.h"

#include <QDir>
#include <QFile>
#include <filesystem>

#include "Foundation/Paths.h"

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

bool leadsTo(const fs::path &link, const std::string &mountPoint) {
  std::error_code error;
  const std::string target = fs::read_symlink(link, error).string();
  if (error || target.compare(0, mountPoint.size(), mountPoint) != 0) return false;
  return target.size() == mountPoint.size() || target[mountPoint.size()] == '/';
}

bool holds(const fs::path &process, const std::string &mountPoint) {
  for (const char *link : {"cwd", "root", "exe"}) {
    if (leadsTo(process / link, mountPoint)) return true;
  }
  std::error_code error;
  fs::directory_iterator file(process / "fd", error);
  for (; !error && file != fs::directory_iterator(); file.increment(error)) {
    if (leadsTo(file->path(), mountPoint)) return true;
  }
  return false;
}

QString nameOf(const QString &process) {
  QFile file(u"/proc/%1/comm"_s.arg(process));
  const QString name =
      file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll().trimmed()) : QString();
  return u"%1 (%2)"_s.arg(name.isEmpty() ? u"?"_s : name, process);
}

}  // namespace

QStringList processesUsingVolume(const QString &mountPoint) {
  const std::string path = bytesOfPath(mountPoint).toStdString();
  QStringList users;
  for (const QString &entry : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
    bool isProcess = false;
    entry.toInt(&isProcess);
    if (isProcess && holds(fs::path("/proc") / entry.toStdString(), path)) users += nameOf(entry);
  }
  return users;
}
