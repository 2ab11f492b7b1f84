#include "Platform/linux/UnitNumbers.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSet>
#include <algorithm>
#include <chrono>

#include "Foundation/SystemLog.h"

using namespace Qt::StringLiterals;

namespace {

// The file is held for a millisecond or two. Longer than this, and its holder is in trouble.
constexpr std::chrono::milliseconds kLongestWait{200};

// With more than these, disks that are gone are forgotten, and the file stays small.
constexpr qsizetype kMostDisks = 5000;

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

// The service announces disks in no particular order: all that the kernel has take part.
void UnitNumbers::number(QList<Candidate> candidates) {
  for (const WholeDisk &disk : _devices.all()) {
    candidates.append({disk, _devices.identityOf(disk)});
  }
  std::ranges::stable_sort(candidates, comesBefore, &Candidate::disk);

  if (_file.path().isEmpty()) return numberOnwards(candidates);
  QDir().mkpath(QFileInfo(_file.path()).path());
  QLockFile lock(_file.path() + u".lock"_s);
  const bool isLocked = lock.tryLock(kLongestWait);
  adopt(_file.read());
  numberOnwards(candidates);
  if (_units.numbers.size() > kMostDisks) keepOnly(candidates);
  if (!isLocked || !_file.write(_units)) {
    systemLog(u"the unit numbers of disks cannot be shared through "_s + _file.path());
  }
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

// A number that this program has given to another disk meanwhile stays with that one.
void UnitNumbers::adopt(const Units &shared) {
  const QSet<int> own(_units.numbers.begin(), _units.numbers.end());
  for (auto unit = shared.numbers.begin(); unit != shared.numbers.end(); ++unit) {
    const bool isFree = !_units.numbers.contains(unit.key()) && !own.contains(unit.value());
    if (isFree) _units.numbers.insert(unit.key(), unit.value());
  }
  _units.next = std::max(_units.next, shared.next);
}
