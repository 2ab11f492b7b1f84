#include "Platform/linux/LinuxRawDevices.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QFile>

#include "Platform/linux/LinuxDiskService.h"

bool LinuxRawDevices::isPrivileged() const {
  return getuid() == 0;
}

// The kernel's own statfs does not distinguish the FAT variants.
std::optional<quint32> LinuxRawDevices::fileSystemSubtype(const QString &mountPoint) const {
  const QString version = _disks.fileSystemVersionAt(mountPoint);
  const QString versions[] = {QStringLiteral("FAT12"), QStringLiteral("FAT16"),
                              QStringLiteral("FAT32")};
  for (quint32 subtype = 0; subtype < std::size(versions); ++subtype) {
    if (version == versions[subtype]) return subtype;
  }
  return std::nullopt;
}

std::optional<quint32> LinuxRawDevices::physicalBlockSize(const QString &bsdName) const {
  return ask(bsdName, BLKPBSZGET);
}

std::optional<quint32> LinuxRawDevices::logicalBlockSize(const QString &bsdName) const {
  return ask(bsdName, BLKSSZGET);
}

std::optional<quint32> LinuxRawDevices::ask(const QString &bsdName, unsigned long request) const {
  const auto description = _disks.descriptionOfMedia(bsdName).value_or(DiskDescription());
  const QString node = description.value(kDiskDescriptionDeviceNodeKey).toString();
  // Without O_NONBLOCK a drive would first close its tray, or wait for a medium.
  const int device = open(QFile::encodeName(node).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (device < 0) return std::nullopt;
  unsigned int size = 0;
  const bool isAnswered = ioctl(device, request, &size) == 0;
  close(device);
  return isAnswered ? std::optional(quint32{size}) : std::nullopt;
}
