#include "Measurements.h"

#include <sys/mount.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <ctime>
#include <system_error>

#include "Commands.h"
#include "MountSignal.h"
#include "Program.h"
#include "Report.h"
#include "support/EventGap.h"
#include "support/MuteVolume.h"

using namespace Qt::StringLiterals;

namespace {

double refreshTime(Program &program, bool showsAll) {
  program.setShowsAll(showsAll);
  QCoreApplication::processEvents();
  const Instant start = now();
  program.refreshLists();
  return millisecondsBetween(start, now());
}

void waitForRow(const PaintedTitle &title) {
  waitUntil([&] { return title.when().has_value(); }, u"a changed row"_s);
}

/// The time from the press until the row shows the result. `verb` begins the button's new title.
double clickTime(Program &program, const QString &name, const QString &verb) {
  const PaintedTitle title(verb + u' ' + name);
  const Instant start = now();
  program.click(name);
  waitForRow(title);
  return millisecondsBetween(start, *title.when());
}

double peerTime(const QString &action, const QString &device, const PaintedTitle &title) {
  const double time = millisecondsOf(u"udisksctl"_s, {action, u"-b"_s, device});
  waitForRow(title);
  return time;
}

/// The longest time without serving events while the partition is mounted and unmounted by clicks.
double gapOf(Program &program, const QString &name) {
  const EventGap gap;
  for (int run = 0; run < kRuns; ++run) {
    clickTime(program, name, u"umount"_s);
    clickTime(program, name, u"mount"_s);
  }
  return gap.longest();
}

double processorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void check(int result, const char *what) {
  if (result != 0) throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

void measureRefresh(Program &program, int partitions, Report &report) {
  for (int run = 0; run < kRuns; ++run) {
    report.add(kRefreshEsps, partitions, refreshTime(program, false));
    report.add(kRefreshAll, partitions, refreshTime(program, true));
    report.add(kLsblk, partitions, millisecondsOf(u"lsblk"_s, {u"--json"_s, u"-O"_s}));
    report.add(kStatus, partitions, millisecondsOf(u"udisksctl"_s, {u"status"_s}));
  }
}

void measureClicks(Program &program, const QString &device, int partitions, Report &report) {
  const QString name = program.nameOf(device);
  program.scrollTo(name);
  for (int run = 0; run < kRuns; ++run) {
    report.add(kClickToRow, partitions, clickTime(program, name, u"umount"_s));
    clickTime(program, name, u"mount"_s);
    const PaintedTitle mounted(u"umount "_s + name);
    report.add(kMount, partitions, peerTime(u"mount"_s, device, mounted));
    const PaintedTitle unmounted(u"mount "_s + name);
    peerTime(u"unmount"_s, device, unmounted);
  }
}

void measureEvents(Program &program, const QString &device, int partitions, Report &report) {
  const QString name = program.nameOf(device);
  program.scrollTo(name);
  const QTemporaryDir folder;
  const QByteArray path = folder.path().toLocal8Bit();
  MountSignal signal(device);
  const auto waitForSignal = [&] {
    waitUntil([&] { return signal.heard().has_value(); }, u"the disk service's signal"_s);
  };
  for (int run = 0; run < kRuns; ++run) {
    const PaintedTitle mounted(u"umount "_s + name);
    signal.forget();
    check(mount(device.toLocal8Bit().constData(), path.constData(), "ext4", 0, nullptr), "mount");
    const Instant start = now();
    waitForRow(mounted);
    waitForSignal();
    report.add(kEventToRow, partitions, millisecondsBetween(start, *mounted.when()));
    report.add(kEventToSignal, partitions, millisecondsBetween(start, *signal.heard()));
    report.add(kRowAfterSignal, partitions, millisecondsBetween(*signal.heard(), *mounted.when()));

    const PaintedTitle unmounted(u"mount "_s + name);
    signal.forget();
    check(umount2(path.constData(), 0), "umount");
    waitForRow(unmounted);
    waitForSignal();
  }
}

void measureGaps(Program &program, const QString &device, const QString &other, int partitions,
                 Report &report) {
  const QString name = program.nameOf(device);
  program.scrollTo(name);
  report.add(kGap, partitions, gapOf(program, name));
  const QTemporaryDir folder;
  const QByteArray path = folder.path().toLocal8Bit();
  check(mount(other.toLocal8Bit().constData(), path.constData(), "ext4", 0, nullptr), "mount");
  {
    const MuteVolume silence(folder.path());
    check(silence.isThere() ? 0 : -1, "mount of a volume that does not answer");
    report.add(kGapBesideSilence, partitions, gapOf(program, name));
  }
  check(umount2(path.constData(), 0), "umount");
}

void measureRefusal(Program &program, const QString &device, int partitions, Report &report) {
  constexpr int kSeconds = 5;
  const QString name = program.nameOf(device);
  program.scrollTo(name);
  program.click(name);
  const double before = processorSeconds();
  QTest::qWait(kSeconds * 1000);
  report.add(kAfterRefusal, partitions, (processorSeconds() - before) / kSeconds * 100);
}
