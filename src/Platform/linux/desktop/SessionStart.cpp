#include "Platform/linux/desktop/SessionStart.h"

#include <unistd.h>

#include <QFile>
#include <QString>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isUnitOfAutostartEntry() {
  return contentOf(u"/proc/self/cgroup"_s).contains("@autostart.service");
}

// A session manager's address ends in its process number.
bool isChildOfSessionManager() {
  const QString address = qEnvironmentVariable("SESSION_MANAGER");
  if (address.section(u'/', -1).toInt() == getppid()) return true;
  // LXQt's session manager has no such address.
  return contentOf(u"/proc/%1/comm"_s.arg(getppid())).trimmed() == "lxqt-session";
}

}  // namespace

bool wasStartedBySession() {
  return qEnvironmentVariableIsSet("DESKTOP_AUTOSTART_ID") || isUnitOfAutostartEntry() ||
         isChildOfSessionManager();
}
