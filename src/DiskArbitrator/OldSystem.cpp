// ESPs on systems up to 10.8, where the command-line tools stand in for the disk service.

#include <algorithm>

#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/DiskFree.h"
#include "Foundation/Paths.h"
#include "Foundation/SystemLog.h"
#include "Foundation/Text.h"

using namespace Qt::StringLiterals;

namespace {

QString devicePath(const QString &reference) {
  return u"/dev/"_s + printed(DiskArbitrator::findBSDName(reference));
}

bool exists(const QString &path) {
  return !Platform::current().volumeFiles().look(path).realPath.isEmpty();
}

/// `base` is used only if nothing exists there; a numbered folder is used also if it is empty.
QString folderToMountOn(const QString &base) {
  QString folder = base;
  for (int number = 1; exists(folder); ++number) {
    folder = base + u' ' + QString::number(number);
    if (exists(folder) && DiskArbitrator::chosenFolderIsEmpty(folder)) break;
  }
  return folder;
}

}  // namespace

bool DiskArbitrator::isOldSystem() {
  return findOSXMinorVersion() <= 8;
}

bool DiskArbitrator::needsLegacyMode(const QString &reference) {
  return isOldSystem() && findPartitionName(reference) == kEFISystemPartition;
}

QString DiskArbitrator::findMountPointLegacy(const QString &reference) {
  const QString device = devicePath(reference);
  const ProgramRun df = Platform::current().systemPrograms().run(u"/bin/df"_s, {});
  return mountPointInDiskFree(pathFromBytes(df.output), device).value_or(u"N/A"_s);
}

bool DiskArbitrator::mountPartitionModeLegacy(const QString &partition,
                                              const std::optional<QString> &atPath) {
  Platform &platform = Platform::current();
  QString base = platform.folders().legacyVolumes + "/EFI"_L1;
  if (atPath.has_value() && *atPath != "(null)"_L1) {
    if (isMountPointValid(*atPath)) return isSameDisk(partition, *atPath);
    base = *atPath;
  }
  const QString folder = folderToMountOn(base);
  if (!exists(folder)) platform.volumeFiles().makeFolder(folder, VolumeFiles::Parents::Leave);

  const ProgramRun mount = platform.systemPrograms().run(
      u"/sbin/mount"_s, {u"-t"_s, u"msdos"_s, devicePath(partition), folder});
  if (mount.problem.has_value()) {
    systemLog(u"Problem mounting "_s + partition + ": "_L1 + *mount.problem);
  }
  return mount.exitStatus == 0;
}

void DiskArbitrator::umountPartitionModeLegacy(const QString &partition) {
  // Always forced, and every exit status counts as success.
  const ProgramRun umount =
      Platform::current().systemPrograms().run(u"/sbin/umount"_s, {u"-f"_s, devicePath(partition)});
  if (umount.problem.has_value()) systemLog(u"Problem mounting "_s + *umount.problem);
}

bool DiskArbitrator::chosenFolderIsEmpty(const QString &path) {
  const auto entries = Platform::current().volumeFiles().entries(path);
  return entries && std::none_of(entries->begin(), entries->end(), [](const FolderEntry &entry) {
           // A ".DS_Store" shows that the file manager has opened the folder, so it is in use.
           const bool isTrace = entry.name == ".DS_Store"_L1 && !entry.isFolder;
           return isTrace || !entry.name.startsWith(u'.');
         });
}
