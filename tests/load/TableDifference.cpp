#include "load/TableDifference.h"

namespace {

ModelRow shownIn(const ESPTableCellView &cell) {
  return {cell.textField()->stringValue(), cell.mountButton()->title(),
          cell.mountButton()->isEnabled(), cell.openButton()->title(),
          cell.openButton()->isEnabled()};
}

QString wordsOf(const ModelRow &row) {
  return '[' + row.text + " | " + row.mountTitle + (row.canMount ? "" : " (disabled)") + " | " +
         row.openTitle + (row.canOpen ? "" : " (hidden)") + ']';
}

QString differenceOfCell(qint64 row, const ESPTableCellView *cell, const ModelRow &expected) {
  const QString place = QStringLiteral("row %1: ").arg(row);
  if (!cell || cell->isHidden()) return place + "is not to be seen";
  const ModelRow shown = shownIn(*cell);
  if (shown != expected) return place + wordsOf(shown) + " in place of " + wordsOf(expected);
  if (cell->openButton()->isHidden() == expected.canOpen) return place + "the open button";
  if (cell->mountButton()->isHidden()) return place + "the mount button is hidden";
  if (cell->mountButton()->isBusy()) return place + "is still busy";
  return {};
}

}  // namespace

QString differenceOf(const TestMachine &program, const QVector<ModelRow> &expected) {
  const TableView *table = program.interface.tableView();
  if (table->numberOfRows() != expected.size()) {
    return QStringLiteral("%1 rows in place of %2").arg(table->numberOfRows()).arg(expected.size());
  }
  // What is in view comes first: scrolling fills rows anew and would hide what is stale.
  QVector<bool> isSeen(expected.size());
  for (TableCellView *cell : table->visibleCells()) {
    const qint64 row = table->rowOfCell(cell);
    if (row >= expected.size()) return QStringLiteral("a cell for row %1").arg(row);
    const QString difference =
        differenceOfCell(row, qobject_cast<ESPTableCellView *>(cell), expected[row]);
    if (!difference.isEmpty()) return difference;
    isSeen[row] = true;
  }
  for (qint64 row = 0; row < expected.size(); ++row) {
    if (isSeen[row]) continue;
    const QString difference = differenceOfCell(row, program.cell(row), expected[row]);
    if (!difference.isEmpty()) return difference;
  }
  return {};
}
