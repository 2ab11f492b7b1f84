// The programs of a simulated machine, which use the same disks as its service.

#include <QFileInfo>

#include "Platform/simulated/SimulatedPlatform.h"

using namespace Qt::StringLiterals;

namespace {

QString bsdNameOf(const QString &devicePath) {
  constexpr auto kDevices = "/dev/"_L1;
  return devicePath.startsWith(kDevices) ? devicePath.sliced(kDevices.size()) : QString();
}

}  // namespace

ProgramRun SimulatedPlatform::run(const QString &path, const QStringList &arguments) {
  if (path == "/bin/df"_L1) return {{}, 0, diskFree()};
  if (path == "/sbin/mount"_L1) return {{}, mountByProgram(arguments) ? 0 : 1, {}};
  if (path == "/sbin/umount"_L1) return {{}, unmountByProgram(arguments) ? 0 : 1, {}};
  return {path + ": no such program"_L1, -1, {}};
}

QByteArray SimulatedPlatform::diskFree() const {
  QString lines = u"Filesystem 512-blocks Used Available Capacity Mounted on\n"_s;
  for (const SimulatedDisk &disk : _machine.disks) {
    for (const SimulatedPartition &partition : disk.partitions) {
      if (!partition.mountPoint.has_value()) continue;
      lines += "/dev/"_L1 + disk.bsdName(partition) + " 409600 102400 307200 25% "_L1 +
               *partition.mountPoint + u'\n';
    }
  }
  return lines.toUtf8();
}

bool SimulatedPlatform::mountByProgram(const QStringList &arguments) {
  if (arguments.size() != 4 || arguments[0] != "-t"_L1) return false;
  SimulatedPartition *partition = find(bsdNameOf(arguments[2])).partition;
  if (partition == nullptr || partition->mountPoint.has_value()) return false;
  if (partition->volumeKind != arguments[1] || partition->mountRefusal.has_value()) return false;
  if (!QFileInfo(arguments[3]).isDir()) return false;
  putAt(*partition, arguments[3]);
  announce(kNSWorkspaceDidMountNotification, *partition->mountPoint);
  return true;
}

bool SimulatedPlatform::unmountByProgram(const QStringList &arguments) {
  if (arguments.size() != 2 || arguments[0] != "-f"_L1) return false;
  SimulatedPartition *partition = find(bsdNameOf(arguments[1])).partition;
  if (partition == nullptr || !partition->mountPoint.has_value()) return false;
  announce(kNSWorkspaceDidUnmountNotification, *partition->mountPoint);
  takeAway(*partition);
  return true;
}
