#include "load/TruthOfTable.h"

namespace {

const QString kNameOfESP = QStringLiteral("EFI System Partition");

/// Absent when there is none to speak of.
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
  if (partition.media == kNameOfESP) return "ESP";
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

}  // namespace

QMap<QString, QString> expectedRows(const Machine &machine, bool showsAll) {
  QMap<QString, QString> rows;
  if (machine.presence != DiskService::Presence::Answering) return rows;
  for (const SimulatedDisk &disk : machine.disks) {
    for (const SimulatedPartition &each : disk.partitions) {
      if (showsAll || each.media == kNameOfESP) rows.insert(disk.bsdName(each), rowOf(disk, each));
    }
  }
  return rows;
}

QString differenceOf(const TestMachine &program, const QStringList &expected) {
  const TableView *table = program.interface.tableView();
  if (table->numberOfRows() != expected.size()) {
    return QStringLiteral("%1 rows in place of %2").arg(table->numberOfRows()).arg(expected.size());
  }
  // What is in view comes first: scrolling fills rows anew and would hide what is stale.
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
