#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/GetDADiskDescription.h"

using namespace Qt::StringLiterals;

const QString DiskArbitrator::kEFISystemPartition = u"EFI System Partition"_s;

namespace {

/// The volume's name; the media's name when the partition is not mounted or has no volume.
std::optional<QString> displayName(const QString &name) {
  const QString volume = DiskArbitrator::findMountPointName(name).value_or(QString());
  const bool isNamed = !volume.isEmpty() && volume != "(null)"_L1 && volume != "N/A"_L1;
  return isNamed ? volume : DiskArbitrator::findPartitionName(name);
}

}  // namespace

QStringList DiskArbitrator::getAlldisks() {
  return Platform::current().mediaRegistry().mediaNames();
}

QStringList DiskArbitrator::findAllEFIdisk() {
  QStringList esps;
  for (const QString &name : getAlldisks()) {
    if (findPartitionName(name) == kEFISystemPartition) esps.append(name);
  }
  return esps;
}

QStringList DiskArbitrator::getListOfMountedMedia() {
  Platform &platform = Platform::current();
  QStringList names;
  for (const FolderEntry &entry :
       platform.volumeFiles().entries(platform.folders().volumes).value_or(QList<FolderEntry>())) {
    if (entry.isFolder) names += entry.name;
  }

  const bool runsFromInstaller = platform.systemFiles().exists(u"/System/Installation/CDIS"_s);
  if (!runsFromInstaller) {
    const QString bootVolume = findBSDNameOfCurrentVolume().value_or(QString());
    names.append(lastPathComponent(printed(findMountPointName(bootVolume))));
  }
  return names;
}

std::optional<QString> DiskArbitrator::findEFIdiskOfTheParentDisk(const QString &reference) {
  const QString esp = findBSDdiskParent(reference) + "s1"_L1;
  if (isGPT(reference) && findAllEFIdisk().contains(esp)) return esp;
  return std::nullopt;
}

QString DiskArbitrator::findAllPartitionNameParentSeparatedByComma(const QString &reference) {
  const QStringList siblings =
      Platform::current().mediaRegistry().mediaNamesOnDisk(findBSDdiskParent(reference));
  QString line;
  for (const QString &sibling : siblings) {
    const std::optional<QString> name = displayName(sibling);
    if (!name.has_value()) continue;
    if (line.isEmpty())
      line = *name + u':';
    else
      line += (line.endsWith(u':') ? " "_L1 : ", "_L1) + *name;
  }
  return withoutNull(line);
}
