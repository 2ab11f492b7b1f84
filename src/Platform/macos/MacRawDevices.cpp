#include "Platform/macos/MacRawDevices.h"

#include <fcntl.h>
#include <sys/disk.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QFile>

namespace {

std::optional<quint32> ask(const QString &bsdName, unsigned long request) {
  const QByteArray path = QFile::encodeName(QStringLiteral("/dev/") + bsdName);
  const int device = open(path.constData(), O_RDONLY | O_CLOEXEC);
  if (device < 0) return std::nullopt;
  quint32 size = 0;
  const bool isAnswered = ioctl(device, request, &size) == 0;
  close(device);
  return isAnswered ? std::optional(size) : std::nullopt;
}

}  // namespace

bool MacRawDevices::isPrivileged() const {
  return getuid() == 0;
}

std::optional<quint32> MacRawDevices::fileSystemSubtype(const QString &mountPoint) const {
  struct statfs status = {};
  if (statfs(QFile::encodeName(mountPoint).constData(), &status) != 0) return std::nullopt;
  return status.f_fssubtype;
}

std::optional<quint32> MacRawDevices::physicalBlockSize(const QString &bsdName) const {
  return ask(bsdName, DKIOCGETPHYSICALBLOCKSIZE);
}

std::optional<quint32> MacRawDevices::logicalBlockSize(const QString &bsdName) const {
  return ask(bsdName, DKIOCGETBLOCKSIZE);
}
