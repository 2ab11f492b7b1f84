#include "Aims.h"

#include <QTextStream>

#include "Idle.h"
#include "Measurements.h"
#include "Report.h"
#include "StartUp.h"

using namespace Qt::StringLiterals;

namespace {

void printAim(QTextStream &out, const QString &what, double figure, double limit) {
  out << (figure <= limit ? "met     " : "missed  ") << what << ": "
      << QString::number(figure, 'g', 3) << " (aim: at most " << limit << ")\n";
}

}  // namespace

void printAims(QTextStream &out, const Report &report) {
  for (const QString &refresh : {kRefreshEsps, kRefreshAll}) {
    printAim(out, refresh + u", 1000 partitions, share of lsblk's time"_s,
             report.median(refresh, 1000) / report.median(kLsblk, 1000), 0.02);
    printAim(out, refresh + u", 1000 partitions, times that of 100"_s,
             report.median(refresh, 1000) / report.median(refresh, 100), 10);
  }
  for (const int size : report.sizes()) {
    printAim(out, u"click to row, %1 partitions, share of udisksctl's time"_s.arg(size),
             report.median(kClickToRow, size) / report.median(kMount, size), 1.1);
  }
  printAim(out, u"start-up, 10 partitions, share of the smallest Qt program's"_s,
           report.median(kStartUp, 10) / report.median(kSmallestStartUp, 10), 1.3);
  printAim(out, u"resident memory, 10 partitions, share of the smallest Qt program's"_s,
           report.median(kResident, 10) / report.median(kSmallestResident, 10), 1.25);
  printAim(out, u"row after the service's signal, 1000 partitions, ms"_s,
           report.median(kRowAfterSignal, 1000), 16);
  printAim(out, u"longest gap between events served, 1000 partitions, ms"_s,
           report.median(kGap, 1000), 50);
  printAim(out, u"longest gap beside a volume that does not answer, 1000 partitions, ms"_s,
           report.median(kGapBesideSilence, 1000), 250);
  printAim(out, u"processor in the 5 s after a refusal, 1000 partitions, %"_s,
           report.median(kAfterRefusal, 1000), 2);
  for (const QString &idle : {kIdleClosed, kIdleOpen}) {
    printAim(out,
             u"%1, in %2 s (%3: %4)"_s.arg(idle)
                 .arg(kIdleSeconds)
                 .arg(kIdleSmallest, QString::number(report.median(kIdleSmallest, 1000))),
             report.median(idle, 1000), 0);
  }
}
