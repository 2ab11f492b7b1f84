#include "load/RandomWalk.h"

#include <QTimer>

#include "Interface/Popover.h"

using namespace std::chrono_literals;
using Presence = DiskService::Presence;

namespace {

constexpr int kMostDisks = 5;

// Text order is not the order of numbers.
const QList<int> kUnits = {0, 1, 2, 3, 9, 10, 11, 20};
const QList<int> kSlices = {1, 2, 3, 10, 11};
const QStringList kMedia = {"EFI System Partition",
                            "EFI System Partition",
                            "Recovery HD",
                            "Linux filesystem",
                            "efi system",
                            "(null)",
                            "N/A",
                            "open %1 & b",
                            ""};
// Several volumes want the same folder.
const QStringList kVolumes = {"EFI",       "EFI", "EFI1",   "Data", "open data",
                              "Старт: %2", "N/A", "(null)", ""};
const QStringList kOutcomes = {"mounted",   "unmounted",    "refused",
                               "disk gone", "service lost", "nothing to press"};

QString wordsOf(std::optional<DissenterStatus> refusal) {
  return refusal ? QString::number(*refusal, 16) : "none";
}

}  // namespace

RandomWalk::RandomWalk(quint64 seed)
    : _chance(seed), _program(R"({ "disks": [] })"), _model(_program.platform.volumesFolder()) {}

QString RandomWalk::step() {
  const QString what = _program.interface.popover()->isShown() ? stepOfPerson() : stepOfMachine();
  settle();
  return what;
}

QString RandomWalk::stepOfMachine() {
  return _chance.oneIn(12) ? togglePopover() : letHappen();
}

QString RandomWalk::stepOfPerson() {
  const int dice = _chance.below(100);
  if (dice < 30) return letHappen();
  if (dice < 70) return clickMount();
  if (dice < 80) return clickOpen();
  if (dice < 86) return tickShowAll();
  if (dice < 90) return tickForce();
  return togglePopover();
}

QString RandomWalk::done(const QString &kind, const QString &more) {
  ++_counts[kind];
  return kind + ' ' + more;
}

QString RandomWalk::counts() const {
  QStringList list;
  for (auto each = _counts.cbegin(); each != _counts.cend(); ++each) {
    list << QStringLiteral("%1 %2").arg(each.key()).arg(each.value());
  }
  return list.join(", ");
}

QString RandomWalk::letHappen() {
  const Event event = randomEvent();
  event.toMachine(_program.platform);
  event.toModel(_model);
  return done(event.kind, event.words);
}

RandomWalk::Event RandomWalk::randomEvent() {
  const bool isAway = _model.presence() != Presence::Answering;
  if (_chance.oneIn(isAway ? 2 : 60)) return changeOfService();
  const int dice = _chance.below(100);
  if (dice < 20 || _model.disks().isEmpty()) return plugOrPull();
  const QString name = anyPartition();
  if (dice < 45) {
    return event("mount by others", name, [name](auto &world) { world.mountFromOutside(name); });
  }
  if (dice < 65) {
    return event("unmount by others", name,
                 [name](auto &world) { world.unmountFromOutside(name); });
  }
  if (dice < 80) {
    const QString volume = _chance.oneOf(kVolumes);
    return event("rename", name + " to " + volume,
                 [name, volume](auto &world) { world.rename(name, volume); });
  }
  return changeOfAnswers(name);
}

RandomWalk::Event RandomWalk::plugOrPull() {
  const auto &disks = _model.disks();
  const auto &pulled = _model.pulledDisks();
  const bool isFull = disks.size() >= kMostDisks;
  if (!disks.isEmpty() && (isFull || _chance.oneIn(4))) {
    const int unit = _chance.oneOf(disks).unit;
    return event("pull", QString::number(unit), [unit](auto &world) { world.pull(unit); });
  }
  if (!pulled.isEmpty() && _chance.oneIn(2)) {
    const int unit = _chance.oneOf(pulled).unit;
    return event("plug back", QString::number(unit), [unit](auto &world) { world.plugBack(unit); });
  }
  const SimulatedDisk disk = newDisk();
  return event("plug", QString::number(disk.unit), [disk](auto &world) { world.plug(disk); });
}

RandomWalk::Event RandomWalk::changeOfService() {
  const bool isAway = _model.presence() != Presence::Answering;
  const Presence presence = isAway             ? Presence::Answering
                            : _chance.oneIn(2) ? Presence::Asking
                                               : Presence::Absent;
  return event(isAway ? "service back" : "service away", {},
               [presence](auto &world) { world.setPresence(presence); });
}

RandomWalk::Event RandomWalk::changeOfAnswers(const QString &name) {
  if (_chance.oneIn(3)) {
    const auto delay = std::chrono::milliseconds(_chance.below(4));
    return event("delay", name + ' ' + QString::number(delay.count()),
                 [name, delay](auto &world) { world.setDelay(name, delay); });
  }
  if (_chance.oneIn(2)) {
    const auto mishap = static_cast<Mishap>(_chance.below(4));
    return event("mishap", name + ' ' + QString::number(static_cast<int>(mishap)),
                 [name, mishap](auto &world) { world.setMishap(name, mishap); });
  }
  using Refusal = std::optional<DissenterStatus>;
  const QList<Refusal> refusals = {Refusal(), Refusal(), kDAReturnBusy, kDAReturnNotPrivileged};
  const Refusal mount = _chance.oneOf(refusals);
  const Refusal unmount = _chance.oneOf(refusals);
  return event("refusals", name + ' ' + wordsOf(mount) + ' ' + wordsOf(unmount),
               [name, mount, unmount](auto &world) { world.setRefusals(name, mount, unmount); });
}

SimulatedDisk RandomWalk::newDisk() {
  SimulatedDisk disk;
  disk.unit = _chance.oneOf(kUnits);
  disk.media = _chance.oneOf(QStringList{"Samsung SSD", "Stick", "(null)", ""});
  QList<int> slices = kSlices;
  for (int count = _chance.below(5); count > 0; --count) {
    SimulatedPartition partition;
    partition.slice = slices.takeAt(_chance.below(slices.size()));
    partition.media = _chance.oneOf(kMedia);
    disk.partitions << partition;
    if (_chance.oneIn(5)) continue;
    SimulatedPartition &last = disk.partitions.last();
    last.volumeKind = "ext4";
    last.volumeName = _chance.oneOf(kVolumes);
    if (_chance.oneIn(3)) last.mountPoint = "at the plug of " + disk.bsdName(last);
    // No more than one at a time.
    if (disk.unit == 0 && disk.partitions.size() == 1) last.mountPoint = "/";
  }
  return disk;
}

QString RandomWalk::anyPartition() {
  const SimulatedDisk &disk = _chance.oneOf(_model.disks());
  if (disk.partitions.isEmpty()) return disk.bsdName() + "s1";  // not there
  return disk.bsdName(_chance.oneOf(disk.partitions));
}

QString RandomWalk::anyRow() {
  const QStringList names = _model.rows().keys();
  return names.isEmpty() ? QString() : _chance.oneOf(names);
}

QString RandomWalk::clickMount() {
  const QString name = anyRow();
  if (name.isEmpty()) return letHappen();
  // Time enough for something else before the answer, and for one thing at a time.
  const SimulatedPartition before = *_model.partition(name);
  const bool isSlow = before.delay >= 2ms && !before.mishap && before.mountPoint != "/";
  QString words = name;
  std::function<void(Model &)> meanwhile = [](Model &) {};
  bool hasHappened = true;
  if (isSlow && _chance.oneIn(2)) {
    const Event event = randomEvent();
    words += ", meanwhile " + done(event.kind, event.words);
    meanwhile = event.toModel;
    hasHappened = false;
    QTimer::singleShot(1ms, Qt::PreciseTimer, qApp, [this, event, &hasHappened] {
      event.toMachine(_program.platform);
      hasHappened = true;
    });
  }
  _program.click(cellOf(name)->mountButton());
  if (!hasHappened) surprises << "the click did not wait for its answer";
  if (!QTest::qWaitFor([&] { return hasHappened; })) surprises << "the event loop stands still";
  const auto outcome = static_cast<int>(_model.clickMount(name, meanwhile));
  return done("click: " + kOutcomes[outcome], words);
}

QString RandomWalk::clickOpen() {
  const QString name = anyRow();
  if (name.isEmpty() || !_model.partition(name)->mountPoint) return letHappen();
  _opened.paths.clear();
  _program.click(cellOf(name)->openButton());
  const QStringList expected = {*_model.folderToOpen(name)};
  if (_opened.paths != expected) {
    surprises << "opened " + _opened.paths.join(' ') + " in place of " + expected.join(' ');
  }
  return done("open", name);
}

QString RandomWalk::tickShowAll() {
  tick(_program.interface.showAllDisksCheck());
  _model.tickShowAll();
  return done("show all");
}

QString RandomWalk::tickForce() {
  tick(_program.interface.forceUmountCheck());
  _model.tickForce();
  return done("force");
}

QString RandomWalk::togglePopover() {
  if (_program.interface.popover()->isShown()) {
    _program.interface.popover()->close();
    return done("popover closed");
  }
  _program.delegate.showPopover();
  return done("popover opened");
}

void RandomWalk::tick(CheckBox *box) {
  QTest::mouseClick(box, Qt::LeftButton, {}, {8, 8});
}

void RandomWalk::settle() {
  _program.settle();
  // As the program's event loop does between two events.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

ESPTableCellView *RandomWalk::cellOf(const QString &name) {
  return _program.cell(_model.rows().keys().indexOf(name));
}
