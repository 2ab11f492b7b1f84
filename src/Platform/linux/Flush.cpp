#include "Platform/linux/Flush.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>

void flushVolume(const QString &mountPoint) {
  const int folder =
      open(QFile::encodeName(mountPoint).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  const bool isFlushed = folder >= 0 && syncfs(folder) == 0;
  if (folder >= 0) close(folder);
  if (!isFlushed) sync();
}
