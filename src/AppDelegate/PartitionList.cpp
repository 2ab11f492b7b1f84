#include <stdexcept>

#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/SystemLog.h"
#include "Foundation/Text.h"
#include "Interface/EmptyView.h"
#include "Interface/Notice.h"

using namespace Qt::StringLiterals;

namespace {

/// Partitions have an "s" behind the disk's number; whole disks do not.
bool isPartitionName(const QString &name) {
  if (!name.startsWith("disk"_L1)) return false;
  QString rest = name;
  return rest.remove("disk"_L1).contains(u's');
}

}  // namespace

void AppDelegate::refreshLists() {
  _tableViewContents = {};
  QStringList names = _showAll ? DiskArbitrator::getAlldisks() : DiskArbitrator::findAllEFIdisk();
  // Plain order of the UTF-16 code units: "disk10s1" comes before "disk1s1".
  names.sort(Qt::CaseSensitive);
  if (_showAll) names.removeIf([](const QString &name) { return !isPartitionName(name); });

  explainEmptyList();

  for (const QString &name : names) _tableViewContents.append(recordOf(name));
  _tableView->reloadData();
  updateMenu();
}

RowRecord AppDelegate::recordOf(const QString &bsdName) const {
  RowRecord record;
  record.img = DiskArbitrator::findVolumeIcon(bsdName);
  if (record.img.isNull()) throw std::invalid_argument(bsdName.toStdString());
  record.parentOf = DiskArbitrator::findBSDdiskParent(bsdName);
  // The rows of a disk are adjacent and share the line about the disk. Asking again for each row would cost the
  // square of their number.
  const bool isOnDiskAbove =
      !_tableViewContents.isEmpty() && _tableViewContents.last().parentOf == record.parentOf;
  record.parentOfMedia = isOnDiskAbove
                             ? _tableViewContents.last().parentOfMedia
                             : DiskArbitrator::findAllPartitionNameParentSeparatedByComma(bsdName);
  record.isMounted = DiskArbitrator::isMountPointValid(bsdName);
  record.mountPoint =
      printed(record.isMounted ? DiskArbitrator::findMountPoint(bsdName) : std::nullopt);
  record.ESP = bsdName;
  return record;
}

void AppDelegate::refreshListsOrLog() {
  try {
    refreshLists();
    _listNotice->setNotice({});
  } catch (const std::invalid_argument &partition) {
    const QString name = QString::fromUtf8(partition.what());
    systemLog(u"The list of partitions is not complete: no picture for "_s + name);
    _emptyView->setText({}, {});
    _listNotice->setNotice(
        tr("This list is not complete: the picture of %1 cannot be read.").arg(name));
  }
}

void AppDelegate::explainEmptyList() {
  switch (_platform.diskService().presence()) {
    case DiskService::Presence::Asking:
      _emptyView->setText(tr("Looking for disks"), tr("The disk service has not answered yet."));
      return;
    case DiskService::Presence::Absent:
      _emptyView->setText(
          tr("No disk service answers"),
          tr("Disks cannot be seen without it. The list fills as soon as it runs."));
      return;
    case DiskService::Presence::Answering:
      break;
  }
  if (_showAll) {
    _emptyView->setText(tr("No partition here"), tr("Attach a disk to see its partitions."));
  } else {
    _emptyView->setText(tr("No EFI System Partition here"),
                        tr("Attach a disk that has one, or tick Show all."));
  }
}
