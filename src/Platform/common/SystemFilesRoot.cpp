#include "Platform/common/SystemFilesRoot.h"

#include <QCoreApplication>

QString systemFilesRoot() {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/keldra/system");
}
