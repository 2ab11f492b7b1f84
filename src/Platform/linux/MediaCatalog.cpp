#include "Platform/linux/MediaCatalog.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "Platform/linux/MediumNames.h"

using namespace Qt::StringLiterals;

namespace {

QString driveOf(const ServiceObject &block) {
  return block.link(kBlockInterface, u"Drive"_s);
}

QString diskOf(const ServiceObject &partition) {
  return partition.link(kPartitionInterface, u"Table"_s);
}

WholeDisk wholeDisk(const ServiceObject &block) {
  return {kernelNameOf(block), block.device()};
}

}  // namespace

bool MediaCatalog::isKnownDisk(const QString &path) const {
  const auto medium = _media.find(path);
  return medium != _media.end() && medium->second.slice == 0;
}

// A partition's name depends on its disk, and both descriptions depend on the drive.
QSet<QString> MediaCatalog::withDependants(const ServiceObjects &objects,
                                           QSet<QString> changed) const {
  const bool onlyPartitions = std::ranges::all_of(changed, [&](const QString &path) {
    return objects.value(path).has(kPartitionInterface) && !isKnownDisk(path);
  });
  if (onlyPartitions) return changed;
  const QSet<QString> causes = changed;
  for (auto object = objects.begin(); object != objects.end(); ++object) {
    if (causes.contains(driveOf(*object)) || causes.contains(diskOf(*object))) {
      changed.insert(object.key());
    }
  }
  return changed;
}

bool MediaCatalog::update(const ServiceObjects &objects, const QSet<QString> &changed) {
  const QSet<QString> paths = withDependants(objects, changed);
  const bool disksDiffer = updateDisks(objects, paths);
  const bool partitionsDiffer = updatePartitions(objects, paths);
  if (disksDiffer || partitionsDiffer) arrange();
  return disksDiffer || partitionsDiffer;
}

bool MediaCatalog::updateDisks(const ServiceObjects &objects, const QSet<QString> &paths) {
  bool differs = false;
  QStringList found;
  QList<WholeDisk> disks;
  for (const QString &path : paths) {
    const ServiceObject object = objects.value(path);
    if (isWholeDisk(object)) {
      found << path;
      disks << wholeDisk(object);
    } else if (!object.has(kPartitionInterface) || isKnownDisk(path)) {
      differs |= put(path, std::nullopt);
    }
  }
  const QList<int> units = _units.unitsOf(disks);
  for (qsizetype i = 0; i < found.size(); ++i) {
    const ServiceObject block = objects.value(found[i]);
    differs |=
        put(found[i], describeDisk(found[i], block, objects.value(driveOf(block)), units[i]));
  }
  return differs;
}

bool MediaCatalog::updatePartitions(const ServiceObjects &objects, const QSet<QString> &paths) {
  bool differs = false;
  for (const QString &path : paths) {
    const ServiceObject object = objects.value(path);
    if (!object.has(kPartitionInterface)) continue;
    const QString disk = diskOf(object);
    differs |= put(path, isKnownDisk(disk)
                             ? describePartition(path, object, objects.value(disk),
                                                 objects.value(driveOf(object)), _media[disk].unit)
                             : std::nullopt);
  }
  return differs;
}

bool MediaCatalog::put(const QString &path, const std::optional<Medium> &medium) {
  if (!medium) return _media.erase(path) > 0;
  const auto before = _media.find(path);
  if (before != _media.end() && before->second == *medium) return false;
  _media.insert_or_assign(path, *medium);
  return true;
}

void MediaCatalog::arrange() {
  std::vector<const Medium *> media;
  for (const auto &[path, medium] : _media) media.push_back(&medium);
  std::ranges::sort(media, {}, [](const Medium *medium) {
    return std::tie(medium->unit, medium->slice, medium->objectPath);
  });
  _byName.clear();
  _byDevice.clear();
  _names.clear();
  _namesOnDisk.clear();
  for (const Medium *medium : media) {
    const QString name = medium->bsdName();
    if (_byName.contains(name))
      continue;  // two objects for one device, as in the middle of a change
    _byName.insert(name, medium);
    _byDevice.insert(medium->device, medium);
    _names << name;
    _namesOnDisk[medium->wholeDisk()] << name;
  }
}
