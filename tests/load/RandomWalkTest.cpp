// One random thing after another is done to a program on a simulated machine, by others and by a
// person; after each, the table must show what the machine is.

#include <gtest/gtest.h>

#include <QLoggingCategory>
#include <QTimer>

#include "Interface/Popover.h"
#include "load/Load.h"
#include "load/TruthOfTable.h"
#include "support/OpenedFolders.h"

using namespace std::chrono_literals;
using Presence = DiskService::Presence;

namespace {

constexpr int kMostDisks = 5;

// Text order is not the order of numbers.
const QList<int> kUnits = {0, 1, 2, 3, 9, 10, 11, 20};
const QList<int> kSlices = {1, 2, 3, 10, 11};
const QString kESP = "EFI System Partition";
const QStringList kMedia = {
    kESP,          kESP, "Recovery HD", "Linux filesystem", "efi system", "(null)", "N/A",
    "open %1 & b", ""};
// Several volumes want the same folder.
const QStringList kVolumes = {"EFI",       "EFI", "EFI1",   "Data", "open data",
                              "Старт: %2", "N/A", "(null)", ""};

class RandomWalk {
 public:
  explicit RandomWalk(quint64 seed) : _chance(seed), _program(R"({ "disks": [] })") {}

  /// Gives in words what it did.
  QString step() {
    const QString words = _program.interface.popover()->isShown() ? person() : machine();
    _program.settle();
    // As the program's event loop does between two events.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return words;
  }

  QMap<QString, QString> rows() const {
    return expectedRows(_program.platform.machine(), _showsAll);
  }
  /// What is wrong now; empty when all is well.
  QString wrong() const { return _surprises + differenceOf(_program, rows().values()); }

 private:
  QString machine() { return _chance.oneIn(12) ? togglePopover() : letHappen(); }

  QString person() {
    const int dice = _chance.below(100);
    const QStringList names = rows().keys();
    if (dice < 30 || (dice < 80 && names.isEmpty())) return letHappen();
    if (dice < 70) return clickMount(_chance.oneOf(names));
    if (dice < 80) return clickOpen(_chance.oneOf(names));
    if (dice < 86) return tick(_program.interface.showAllDisksCheck(), _showsAll);
    if (dice < 90) return tick(_program.interface.forceUmountCheck(), _forces);
    return togglePopover();
  }

  QString letHappen() {
    SimulatedPlatform &platform = _program.platform;
    const bool isAway = platform.presence() != Presence::Answering;
    if (_chance.oneIn(isAway ? 2 : 60)) {
      const Presence away = _chance.oneIn(2) ? Presence::Asking : Presence::Absent;
      platform.setPresence(isAway ? Presence::Answering : away);
      return isAway ? "service back" : "service away";
    }
    const int dice = _chance.below(100);
    if (dice < 20 || platform.machine().disks.isEmpty()) return plugOrPull();
    const QString name = anyPartition();
    if (dice < 45) return platform.mountFromOutside(name), "mount by others " + name;
    if (dice < 65) return platform.unmountFromOutside(name), "unmount by others " + name;
    if (dice >= 80) return changeAnswers(name);
    const QString volume = _chance.oneOf(kVolumes);
    platform.rename(name, volume);
    return "rename " + name + " to " + volume;
  }

  QString plugOrPull() {
    const auto &disks = _program.platform.machine().disks;
    const auto &pulled = _program.platform.pulledDisks();
    if (!disks.isEmpty() && (disks.size() >= kMostDisks || _chance.oneIn(4))) {
      const int unit = _chance.oneOf(disks).unit;
      _program.platform.pull(unit);
      return "pull " + QString::number(unit);
    }
    if (!pulled.isEmpty() && _chance.oneIn(2)) {
      const int unit = _chance.oneOf(pulled).unit;
      _program.platform.plugBack(unit);
      return "plug back " + QString::number(unit);
    }
    const SimulatedDisk disk = newDisk();
    _program.platform.plug(disk);
    return "plug " + disk.bsdName();
  }

  QString changeAnswers(const QString &name) {
    if (_chance.oneIn(3)) {
      _program.platform.setDelay(name, std::chrono::milliseconds(_chance.below(4)));
    } else if (_chance.oneIn(2)) {
      _program.platform.setMishap(name, static_cast<Mishap>(_chance.below(4)));
    } else {
      using Refusal = std::optional<DissenterStatus>;
      const QList<Refusal> refusals = {Refusal(), Refusal(), kDAReturnBusy, kDAReturnNotPrivileged};
      const Refusal mount = _chance.oneOf(refusals);
      _program.platform.setRefusals(name, mount, _chance.oneOf(refusals));
    }
    return "other answers for " + name;
  }

  SimulatedDisk newDisk() {
    SimulatedDisk disk;
    disk.unit = _chance.oneOf(kUnits);
    disk.media = _chance.oneOf(QStringList{"Samsung SSD", "Stick", "(null)", ""});
    QList<int> slices = kSlices;
    for (int count = _chance.below(5); count > 0; --count) {
      SimulatedPartition partition;
      partition.slice = slices.takeAt(_chance.below(slices.size()));
      partition.media = _chance.oneOf(kMedia);
      if (!_chance.oneIn(5)) {
        partition.volumeKind = "ext4";
        partition.volumeName = _chance.oneOf(kVolumes);
        if (_chance.oneIn(3)) partition.mountPoint = "at the plug of " + disk.bsdName(partition);
        // No more than one at a time.
        if (disk.unit == 0 && disk.partitions.isEmpty()) partition.mountPoint = "/";
      }
      disk.partitions << partition;
    }
    return disk;
  }

  QString anyPartition() {
    const SimulatedDisk &disk = _chance.oneOf(_program.platform.machine().disks);
    if (disk.partitions.isEmpty()) return disk.bsdName() + "s1";  // not there
    return disk.bsdName(_chance.oneOf(disk.partitions));
  }

  /// A copy; without a mount point if it is not there.
  SimulatedPartition partition(const QString &name) const {
    for (const SimulatedDisk &disk : _program.platform.machine().disks) {
      for (const SimulatedPartition &each : disk.partitions) {
        if (disk.bsdName(each) == name) return each;
      }
    }
    return {};
  }

  bool isRefused(const SimulatedPartition &partition) const {
    if (!partition.mountPoint) return partition.volumeKind.isEmpty() || partition.mountRefusal;
    const bool isForced = _forces && partition.unmountRefusal == kDAReturnBusy;
    return partition.mountPoint == "/" || (partition.unmountRefusal && !isForced);
  }

  QString clickMount(const QString &name) {
    const SimulatedPartition before = partition(name);
    QString words = "click on mount of " + name;
    const bool isAlone = before.delay < 2ms || _chance.oneIn(2);
    bool hasHappened = isAlone;
    if (!isAlone) {
      QTimer::singleShot(1ms, Qt::PreciseTimer, qApp, [&] {
        words += ", meanwhile " + letHappen();
        hasHappened = true;
      });
    }
    _program.click(cellOf(name)->mountButton());
    if (!QTest::qWaitFor([&] { return hasHappened; })) _surprises += "the event loop stands still ";
    if (!isAlone || before.mishap) return words;
    const bool isChanged = partition(name).mountPoint.has_value() != before.mountPoint.has_value();
    if (isChanged == isRefused(before)) _surprises += "the click was answered otherwise ";
    return words;
  }

  QString clickOpen(const QString &name) {
    const auto mountPoint = partition(name).mountPoint;
    if (!mountPoint) return letHappen();
    _opened.paths.clear();
    _program.click(cellOf(name)->openButton());
    // A path with the word in it is cut there.
    const QStringList expected(mountPoint->section("open ", 0, 0));
    if (_opened.paths != expected) _surprises += "opened " + _opened.paths.join(' ') + ' ';
    return "click on open of " + name;
  }

  QString tick(CheckBox *box, bool &state) {
    QTest::mouseClick(box, Qt::LeftButton, {}, {8, 8});
    state = !state;
    return "tick";
  }

  QString togglePopover() {
    Popover *popover = _program.interface.popover();
    if (!popover->isShown()) return _program.delegate.showPopover(), "popover opened";
    popover->close();
    return "popover closed";
  }

  ESPTableCellView *cellOf(const QString &name) const {
    return _program.cell(rows().keys().indexOf(name));
  }

  Chance _chance;
  OpenedFolders _opened;
  TestMachine _program;
  bool _showsAll = false;
  bool _forces = false;
  QString _surprises;
};

}  // namespace

TEST(RandomWalk, LeavesTheTableTrueAfterEveryStep) {
  // Each refusal is logged, and each opening of the popover laments that it cannot be raised.
  QLoggingCategory::setFilterRules("default.warning=false");
  const quint64 seed = loadSeed();
  const int steps = loadCount(100'000, 2000);
  RandomWalk walk(seed);
  QStringList latest;
  qint64 rows = 0;
  for (int step = 1; step <= steps; ++step) {
    latest << walk.step();
    if (latest.size() > 10) latest.removeFirst();
    const QString wrong = walk.wrong();
    ASSERT_TRUE(wrong.isEmpty()) << "KELDRA_LOAD_SEED=" << seed << ", step " << step << ": "
                                 << wrong.toStdString() << "\nafter\n  "
                                 << latest.join("\n  ").toStdString();
    rows += walk.rows().size();
  }
  printLine(QStringLiteral("random walk, seed %1: %2 steps, %3 rows compared, no difference")
                .arg(seed)
                .arg(steps)
                .arg(rows));
}
