#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "ESPTableCellView.h"
#include "Foundation/Text.h"
#include "Interface/ImageView.h"
#include "Interface/RowButton.h"
#include "Interface/RowTextField.h"

using namespace Qt::StringLiterals;

namespace {

QString emptyIfUnknown(const QString &text) {
  return text == "N/A"_L1 || text == "(null)"_L1 ? QString() : text;
}

/// What the row's first line begins with.
QString titleOf(const RowRecord &record) {
  const QString name = printed(DiskArbitrator::findPartitionName(record.ESP));
  if (name == DiskArbitrator::kEFISystemPartition) return u"ESP"_s;
  if (name == "Recovery HD"_L1) return name;
  // Asked again: the mount point may have changed since the list was built.
  if (record.isMounted)
    return lastPathComponent(printed(DiskArbitrator::findMountPoint(record.ESP)));
  return name;
}

QStringList linesOf(const RowRecord &record) {
  return {u"%1 on %2"_s.arg(titleOf(record), record.ESP),
          u"parent of %1,"_s.arg(emptyIfUnknown(record.parentOf)),
          emptyIfUnknown(record.parentOfMedia)};
}

}  // namespace

qint64 AppDelegate::numberOfRowsInTableView(TableView * /*tableView*/) {
  return _tableViewContents.size();
}

TableCellView *AppDelegate::tableView(TableView *tableView, const TableColumn &viewForTableColumn,
                                      qint64 row) {
  if (row < 0 || row >= _tableViewContents.size()) return nullptr;
  if (viewForTableColumn.identifier != "MainCell"_L1) return nullptr;
  const RowRecord &record = _tableViewContents[row];
  if (!record.ESP.startsWith("disk"_L1)) return nullptr;

  auto *cell = qobject_cast<ESPTableCellView *>(tableView->makeView(viewForTableColumn.identifier));
  if (cell == nullptr) return nullptr;
  cell->textField()->setLines(linesOf(record));
  cell->imageView()->setImage(record.img);
  cell->setDeviceNode(DiskArbitrator::findDeviceNode(record.ESP).value_or(QString()));
  // What the buttons show, in words for screen readers.
  cell->setAccessibleDescription(record.isMounted ? tr("Mounted") : tr("Not mounted"));

  RowButton *mountButton = cell->mountButton();
  mountButton->setTitle(record.mountTitle());
  mountButton->setProminent(!record.isMounted);
  mountButton->setBusy(record.ESP == _busyPartition);
  mountButton->setAction([this](RowButton *sender) { mountOrUmount(sender); });
  // Never enabled again: a cell with a disabled button is never reused for another row.
  if (!record.canBeMountedOrUmounted()) mountButton->setEnabled(false);

  RowButton *openButton = cell->openButton();
  openButton->setTitle(record.openTitle());
  openButton->setEnabled(record.isMounted);
  openButton->setVisible(record.isMounted);
  openButton->setAction([this](RowButton *sender) { openEsp(sender); });
  return cell;
}

void AppDelegate::tableView(TableView * /*tableView*/, QWidget * /*didAddRowView*/,
                            qint64 /*forRow*/) {}

void AppDelegate::tableViewSelectionDidChange(TableView *sender) {
  _lastSelectedRow = sender->selectedRow();
}
