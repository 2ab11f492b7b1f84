#include "Platform/linux/UnitNumbers.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <cstdlib>

#include "Foundation/PlainFile.h"

namespace {

// Above this number, removed disks are dropped, so that the file stays small.
constexpr qsizetype kMostDisks = 5000;

/// While this object exists, root has the rights of the folder's owner: root creates no files of its
/// own there, and cannot follow links that the owner could not.
class AsOwnerOf {
 public:
  explicit AsOwnerOf(const QString &folder) {
    struct stat found = {};
    const bool isOthers = stat(QFile::encodeName(folder).constData(), &found) == 0 && found.st_uid;
    if (geteuid() != 0 || !isOthers) return;
    _isSomebodyElse = setegid(found.st_gid) == 0 && seteuid(found.st_uid) == 0;
  }
  ~AsOwnerOf() {
    if (_isSomebodyElse && (seteuid(0) != 0 || setegid(0) != 0)) std::abort();
  }
  AsOwnerOf(const AsOwnerOf &) = delete;
  AsOwnerOf &operator=(const AsOwnerOf &) = delete;

 private:
  bool _isSomebodyElse = false;
};

}  // namespace

UnitNumbers::UnitNumbers(BlockDevices devices, UnitFile file)
    : _devices(std::move(devices)), _file(std::move(file)) {}

QList<int> UnitNumbers::unitsOf(const QList<WholeDisk> &disks) {
  QList<Candidate> announced;
  for (const WholeDisk &disk : disks) announced.append({disk, _devices.identityOf(disk)});
  const bool allKnown = std::ranges::all_of(announced, [this](const Candidate &candidate) {
    return _units.numbers.contains(candidate.identity);
  });
  if (!allKnown) number(announced);
  QList<int> units;
  for (const Candidate &candidate : announced) units << _units.numbers.value(candidate.identity);
  return units;
}

// The service announces disks in no particular order, so all disks of the kernel are numbered
// together.
void UnitNumbers::number(QList<Candidate> candidates) {
  for (const WholeDisk &disk : _devices.all()) {
    candidates.append({disk, _devices.identityOf(disk)});
  }
  std::ranges::stable_sort(candidates, comesBefore, &Candidate::disk);

  if (_file.path().isEmpty()) return numberOnwards(candidates);
  const AsOwnerOf owner(QFileInfo(QFileInfo(_file.path()).path()).path());
  // The lock prevents other writers between reading and writing.
  PlainFileWriter writer(_file.path());
  adopt(_file.read());
  numberOnwards(candidates);
  if (_units.numbers.size() > kMostDisks) keepOnly(candidates);
  writer.write(_file.bytesOf(_units));
}

void UnitNumbers::numberOnwards(const QList<Candidate> &candidates) {
  for (const Candidate &candidate : candidates) {
    if (_units.numbers.contains(candidate.identity)) continue;
    _units.numbers.insert(candidate.identity, _units.next++);
  }
}

void UnitNumbers::keepOnly(const QList<Candidate> &candidates) {
  QHash<QString, int> kept;
  for (const Candidate &candidate : candidates) {
    kept.insert(candidate.identity, _units.numbers.value(candidate.identity));
  }
  _units.numbers = kept;
}

// A number that this program has given to another disk meanwhile stays with that disk.
void UnitNumbers::adopt(const Units &shared) {
  const QSet<int> own(_units.numbers.begin(), _units.numbers.end());
  for (auto unit = shared.numbers.begin(); unit != shared.numbers.end(); ++unit) {
    const bool isFree = !_units.numbers.contains(unit.key()) && !own.contains(unit.value());
    if (isFree) _units.numbers.insert(unit.key(), unit.value());
  }
  _units.next = std::max(_units.next, shared.next);
}
