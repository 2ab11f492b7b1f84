#pragma once

// The measurements. All times are in milliseconds.

#include <QString>

class Program;
class Report;

inline const QString kRefreshEsps = QStringLiteral("refreshLists, ESPs only");
inline const QString kRefreshAll = QStringLiteral("refreshLists, show all");
inline const QString kLsblk = QStringLiteral("lsblk --json -O");
inline const QString kStatus = QStringLiteral("udisksctl status");
inline const QString kClickToRow = QStringLiteral("click to changed row");
inline const QString kMount = QStringLiteral("udisksctl mount");
inline const QString kEventToRow = QStringLiteral("mount table to changed row");
inline const QString kEventToSignal = QStringLiteral("mount table to PropertiesChanged");
inline const QString kRowAfterSignal = QStringLiteral("changed row after PropertiesChanged");
inline const QString kGap = QStringLiteral("longest gap between events served");
inline const QString kGapBesideSilence = QStringLiteral("the same, another volume not answering");
inline const QString kAfterRefusal = QStringLiteral("processor in 5 s after a refusal, %");

/// The number of runs of each measurement. Keldra's runs alternate with those of its peers.
constexpr int kRuns = 15;

// Each adds its times to the report, for this number of partitions, and throws std::runtime_error
// when an expected event does not come. The device is an unmounted partition with a file system; the
// program shows all partitions afterwards.

void measureRefresh(Program &program, int partitions, Report &report);
void measureClicks(Program &program, const QString &device, int partitions, Report &report);
void measureEvents(Program &program, const QString &device, int partitions, Report &report);
/// While the device is mounted and unmounted by clicks; then again while `other`, a second such partition, is mounted
/// and its volume does not answer.
void measureGaps(Program &program, const QString &device, const QString &other, int partitions,
                 Report &report);
/// `device` has nothing that could be mounted.
void measureRefusal(Program &program, const QString &device, int partitions, Report &report);
