#include "DiskArbitrator/DescriptionValues.h"
#include "DiskArbitrator/DiskArbitrator.h"

using namespace Qt::StringLiterals;

std::optional<QString> DiskArbitrator::findBSDName(const QString &reference) {
  return descriptionText(reference, kDADiskDescriptionMediaBSDNameKey);
}

std::optional<QString> DiskArbitrator::findBSDNameOfCurrentVolume() {
  return findBSDName(u"/"_s);
}

bool DiskArbitrator::isSameDisk(const QString &reference, const QString &other) {
  return areEqualTexts(findBSDName(reference), findBSDName(other));
}

QString DiskArbitrator::findBSDdiskParent(const QString &reference) {
  // The service's unit number, not the name's digits: the reference may be a path.
  const QVariant unit = descriptionValue(reference, kDADiskDescriptionMediaBSDUnitKey);
  return "disk"_L1 + (unit.isValid() ? QString::number(unit.toLongLong()) : printed(std::nullopt));
}

QString DiskArbitrator::findSliceNumberFromPartitionDisk(const QString &reference) {
  // "disk0s1" falls into "di", "k0" and "1".
  const QStringList pieces = findBSDName(reference).value_or(QString()).split(u's');
  if (pieces.size() != 3 || leadingInteger(pieces.last()) == 0) return u"N/A"_s;
  return pieces.last();
}
