// Random actions of the user and of other programs on a simulated machine; after each one, the
// table must match the machine.

#include <gtest/gtest.h>

#include <QLoggingCategory>
#include <QTimer>

#include "Interface/Popover.h"
#include "load/Load.h"
#include "support/EventGap.h"
#include "support/TestMachine.h"

using namespace std::chrono_literals;
using Presence = DiskService::Presence;

namespace {

// Text order differs from numeric order for these.
const QList<int> kUnits = {0, 1, 2, 3, 9, 10, 11, 20};
const QList<int> kSlices = {1, 2, 3, 10, 11};
const QString kESP = "EFI System Partition";
const QStringList kMedia = {
    kESP,          kESP, "Recovery HD", "Linux filesystem", "efi system", "(null)", "N/A",
    "open %1 & b", ""};
// Several volumes need the same folder.
const QStringList kVolumes = {"EFI",       "EFI", "EFI1",   "Data", "open data",
                              "Старт: %2", "N/A", "(null)", ""};

/// Absent when the name is empty.
std::optional<QString> mediaName(const QString &media) {
  if (media.isEmpty()) return std::nullopt;
  return media == "(null)" ? "N/A" : media;
}

std::optional<QString> nameAmongSiblings(const SimulatedPartition &partition) {
  const QString &volume = partition.volumeName;
  const bool counts = partition.mountPoint && volume != "" && volume != "(null)" && volume != "N/A";
  return counts ? volume : mediaName(partition.media);
}

QString siblingLine(const SimulatedDisk &disk) {
  QList<std::optional<QString>> names = {mediaName(disk.media)};
  for (const SimulatedPartition &partition : disk.partitions) names << nameAmongSiblings(partition);
  QString line;
  for (const auto &name : names) {
    if (!name) continue;
    if (line.isEmpty()) {
      line = *name + ":";
    } else {
      line += (line.endsWith(":") ? " " : ", ") + *name;
    }
  }
  return line;
}

QString titleOf(const SimulatedPartition &partition) {
  if (partition.media == kESP) return "ESP";
  if (partition.media == "Recovery HD" || !partition.mountPoint) {
    return mediaName(partition.media).value_or("(null)");
  }
  return *partition.mountPoint == "/" ? "/" : partition.mountPoint->section('/', -1);
}

QString rowOf(const SimulatedDisk &disk, const SimulatedPartition &partition) {
  const QString name = disk.bsdName(partition);
  const QString text = titleOf(partition) + " on " + name + "\nparent of " + disk.bsdName() +
                       ",\n" + siblingLine(disk);
  if (!partition.mountPoint) return text + " | mount " + name + " | open (null) (off) (hidden)";
  return text + " | umount " + name + (partition.mountPoint == "/" ? " (off)" : "") + " | open " +
         *partition.mountPoint;
}

QString shown(const RowButton &button) {
  return " | " + button.title() + (button.isEnabled() ? "" : " (off)") +
         (button.isHidden() ? " (hidden)" : "") + (button.isBusy() ? " (busy)" : "");
}

QString differenceOfCell(qint64 row, const ESPTableCellView *cell, const QString &expected) {
  QString found = "nothing";
  if (cell && !cell->isHidden())
    found =
        cell->textField()->stringValue() + shown(*cell->mountButton()) + shown(*cell->openButton());
  if (found == expected) return {};
  return QStringLiteral("row %1: [").arg(row) + found + "] in place of [" + expected + ']';
}

/// The rows as text, by BSD name, in the order of the table: what the program should show, by separate
/// rules that do not use the program's code.
QMap<QString, QString> expectedRows(const Machine &machine, bool showsAll) {
  QMap<QString, QString> rows;
  if (machine.presence != DiskService::Presence::Answering) return rows;
  for (const SimulatedDisk &disk : machine.disks) {
    for (const SimulatedPartition &each : disk.partitions) {
      if (showsAll || each.media == kESP) rows.insert(disk.bsdName(each), rowOf(disk, each));
    }
  }
  return rows;
}

/// The first difference between the visible table and the expected rows; empty when there is none.
/// Scrolls the table.
QString differenceOf(const TestMachine &program, const QStringList &expected) {
  const TableView *table = program.interface.tableView();
  if (table->numberOfRows() != expected.size()) {
    return QStringLiteral("%1 rows in place of %2").arg(table->numberOfRows()).arg(expected.size());
  }
  // Rows in view come first: scrolling refills rows and would hide stale ones.
  for (qint64 row = 0; row < expected.size(); ++row) {
    auto *cell = qobject_cast<ESPTableCellView *>(table->cellAtRow(row));
    const QString difference = cell ? differenceOfCell(row, cell, expected[row]) : QString();
    if (!difference.isEmpty()) return difference;
  }
  for (qint64 row = 0; row < expected.size(); ++row) {
    const QString difference = differenceOfCell(row, program.cell(row), expected[row]);
    if (!difference.isEmpty()) return difference;
  }
  return {};
}

class RandomWalk {
 public:
  explicit RandomWalk(quint64 seed) : _chance(seed), _program(R"({ "disks": [] })") {
    // Every refusal is logged, and Qt warns at each opening of the popover that it cannot raise it.
    QLoggingCategory::setFilterRules("default.warning=false");
  }
  ~RandomWalk() { QLoggingCategory::setFilterRules({}); }

  /// Returns a description of the step.
  QString step() {
    const EventGap gap;
    const QString words = _program.interface.popover()->isShown() ? person() : machine();
    _program.settle();
    // As the program's event loop does between two events.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    _longestGap = std::max(_longestGap, gap.longest());
    return words;
  }

  /// Over all steps, without what the test itself does between them.
  double longestGap() const { return _longestGap; }

  QMap<QString, QString> rows() const {
    return expectedRows(_program.platform.machine(), _showsAll);
  }
  /// The first difference now; empty when there is none.
  QString wrong() const { return differenceOf(_program, rows().values()); }

 private:
  QString machine() { return _chance.oneIn(12) ? togglePopover() : letHappen(); }

  QString person() {
    const int dice = _chance.below(100);
    const QStringList names = rows().keys();
    if (dice < 30 || (dice < 80 && names.isEmpty())) return letHappen();
    if (dice < 80) return clickMount(_chance.oneOf(names));
    if (dice >= 90) return togglePopover();
    const bool isForAll = dice < 86;
    _showsAll = _showsAll != isForAll;
    (isForAll ? _program.interface.showAllDisksCheck() : _program.interface.forceUmountCheck())
        ->click();
    return "tick";
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
    if (!disks.isEmpty() && (disks.size() >= 5 || _chance.oneIn(4))) {
      const int unit = _chance.oneOf(disks).unit;
      _program.platform.pull(unit);
      return "pull " + QString::number(unit);
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
      const QList<std::optional<DissenterStatus>> refusals = {{}, {}, kDAReturnBusy};
      _program.platform.setRefusals(name, _chance.oneOf(refusals), _chance.oneOf(refusals));
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
        // at most one volume at "/"
        if (disk.unit == 0 && disk.partitions.isEmpty()) partition.mountPoint = "/";
      }
      disk.partitions << partition;
    }
    return disk;
  }

  QString anyPartition() {
    const SimulatedDisk &disk = _chance.oneOf(_program.platform.machine().disks);
    if (disk.partitions.isEmpty()) return disk.bsdName() + "s1";  // does not exist
    return disk.bsdName(_chance.oneOf(disk.partitions));
  }

  QString clickMount(const QString &name) {
    QString words = "click on mount of " + name;
    bool hasHappened = _chance.oneIn(2);
    if (!hasHappened) {
      QTimer::singleShot(1ms, Qt::PreciseTimer, qApp, [&] {
        words += ", meanwhile " + letHappen();
        hasHappened = true;
      });
    }
    _program.click(_program.cell(rows().keys().indexOf(name))->mountButton());
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasHappened; })) << "the event loop stands still";
    return words;
  }

  QString togglePopover() {
    Popover *popover = _program.interface.popover();
    if (!popover->isShown()) return _program.delegate.showPopover(), "popover opened";
    popover->close();
    return "popover closed";
  }

  Chance _chance;
  TestMachine _program;
  bool _showsAll = false;
  double _longestGap = 0;
};

}  // namespace

TEST(RandomWalk, ShowsTheMachinesStateInTheTableAfterEveryStep) {
  const quint64 seed = loadSeed();
  const int steps = loadCount(100'000, 2000);
  RandomWalk walk(seed);
  QStringList latest;
  for (int step = 1; step <= steps; ++step) {
    latest << walk.step();
    if (latest.size() > 10) latest.removeFirst();
    const QString wrong = walk.wrong();
    ASSERT_TRUE(wrong.isEmpty()) << "KELDRA_LOAD_SEED=" << seed << ", step " << step << ": "
                                 << wrong.toStdString() << "\nafter\n  "
                                 << latest.join("\n  ").toStdString();
  }
  printLongestGap(walk.longestGap());
}
