// Measures Keldra beside its peers, in a disk laboratory, and prints medians, ratios and aims.

#include <QApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <exception>

#include "Aims.h"
#include "Idle.h"
#include "LoopDisks.h"
#include "Measurements.h"
#include "Platform/ThisMachine.h"
#include "Program.h"
#include "Report.h"
#include "StartUp.h"
#include "application.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostPartitions = 1000;

void measure(Platform &platform, int partitions, Report &report) {
  QTextStream(stderr) << "bench: " << partitions << " partitions\n";
  const qsizetype others = platform.mediaRegistry().mediaNames().size();
  const LoopDisks disks(partitions);
  waitUntil(
      [&] {
        return platform.mediaRegistry().mediaNames().size() ==
               others + LoopDisks::kDisks + partitions;
      },
      u"all partitions"_s);
  measureStartUp(partitions, report);
  if (partitions == kMostPartitions) measureIdle(partitions, report);
  Program program(platform);
  measureRefresh(program, partitions, report);
  measureClicks(program, disks.mountableDevice(), partitions, report);
  measureEvents(program, disks.mountableDevice(), partitions, report);
  measureGaps(program, disks.mountableDevice(), disks.otherMountableDevice(), partitions, report);
  measureRefusal(program, disks.emptyDevice(), partitions, report);
}

Report measureAll() {
  const std::unique_ptr<Platform> platform = makePlatform();
  const CurrentPlatform current(*platform);
  waitUntil([&] { return platform->diskService().presence() == DiskService::Presence::Answering; },
            u"the disk service"_s);
  const qsizetype others = platform->mediaRegistry().mediaNames().size();
  Report report;
  for (const int partitions : {10, 100, kMostPartitions}) {
    measure(*platform, partitions, report);
    waitUntil([&] { return platform->mediaRegistry().mediaNames().size() == others; },
              u"the end of all partitions"_s);
  }
  return report;
}

void print(QTextStream &out, const Report &report) {
  out << "Medians of " << kRuns
      << " runs in milliseconds or as said, and ratios. Clicks and events: all partitions "
         "shown.\n\n";
  report.printHead(out);
  for (const QString &measure : {kLsblk, kStatus}) report.printMedians(out, measure);
  for (const QString &measure : {kRefreshEsps, kRefreshAll}) {
    report.printMedians(out, measure);
    for (const QString &peer : {kLsblk, kStatus}) report.printRatios(out, measure, peer);
  }
  report.printMedians(out, kMount);
  report.printMedians(out, kClickToRow);
  report.printRatios(out, kClickToRow, kMount);
  for (const QString &measure :
       {kEventToSignal, kEventToRow, kRowAfterSignal, kGap, kGapBesideSilence, kAfterRefusal}) {
    report.printMedians(out, measure);
  }
  for (const auto &[measure, peer] :
       {std::pair(kStartUp, kSmallestStartUp), {kResident, kSmallestResident}}) {
    report.printMedians(out, measure);
    report.printMedians(out, peer);
    report.printRatios(out, measure, peer);
  }
  out << '\n';
  printAims(out, report);
}

}  // namespace

int main(int argc, char **argv) {
  prepareProcess(argv);
  QTextStream errors(stderr);
  if (qEnvironmentVariableIsEmpty("KELDRA_LAB")) {
    errors << "This needs a disk laboratory: start it with ./bench.\n";
    return 2;
  }
  // The user's own files are neither read nor written.
  const QTemporaryDir home;
  for (const char *variable :
       {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(variable, home.path().toLocal8Bit());
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  configureApplication();
  try {
    const Report report = measureAll();
    QTextStream out(stdout);
    print(out, report);
  } catch (const std::exception &problem) {
    errors << "bench: " << problem.what() << '\n';
    return 1;
  }
  return 0;
}
