#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "ESPTableCellView.h"
#include "Foundation/Text.h"
#include "Interface/CheckBox.h"
#include "Interface/InputGate.h"
#include "Interface/RowButton.h"

using namespace Qt::StringLiterals;

/// While a row action is under way: the row's button says so, and nothing that the user does gets
/// in between.
class AppDelegate::RowAction {
 public:
  RowAction(AppDelegate &delegate, const QString &partition)
      : _delegate(delegate), _queueHold(delegate._mainQueue) {
    _delegate._busyPartition = partition;
    _delegate._popover->setHeldOpen(true);
    _delegate.showBusyButtons();
  }
  ~RowAction() {
    _delegate._busyPartition.reset();
    _delegate._popover->setHeldOpen(false);
    _delegate.showBusyButtons();
  }
  RowAction(const RowAction &) = delete;
  RowAction &operator=(const RowAction &) = delete;

 private:
  AppDelegate &_delegate;
  InputGate _inputGate;
  MainQueue::Hold _queueHold;
};

void AppDelegate::mountOrUmount(RowButton *sender) {
  // A screen reader presses buttons without an input event, so the gate alone does not keep a
  // second one out.
  if (sender == nullptr || _busyPartition.has_value()) return;
  // Copied before anything else: the list may be rebuilt and the button retitled while the service
  // works.
  const QStringList pieces = sender->title().split(u' ');
  const QString verb = pieces.value(0);
  const QString partition = pieces.value(1);

  const RowAction underWay(*this, partition);
  if (verb == "mount"_L1) {
    DiskArbitrator::mountPartition(partition, std::nullopt);
  } else {
    // Mixed counts as on here, though not for the show-all box.
    DiskArbitrator::umountPartition(partition, _forceUmountCheck->state() != CheckBox::kOff);
  }
}

void AppDelegate::openEsp(RowButton *sender) {
  if (sender == nullptr || _busyPartition.has_value()) return;
  const QString path = sender->title().split("open "_L1).value(1);
  if (path == "(null)"_L1 || path == "N/A"_L1 || !path.startsWith(u'/')) return;
  // The file manager would show an error of its own at best.
  if (!fileExistsAtPath(path)) return complain(tr("%1 is not there").arg(path));
  const QFileInfo folder(path);
  if (!folder.isReadable() || !folder.isExecutable()) {
    return complain(tr("you may not read %1").arg(path));
  }
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
    complain(tr("no file manager could be started for %1").arg(path));
  }
}

void AppDelegate::showAllDisks(CheckBox *sender) {
  _showAll = sender->state() == CheckBox::kOn;
  refreshListsOrLog();
}

void AppDelegate::showBusyButtons() {
  for (TableCellView *cell : _tableView->visibleCells()) {
    if (auto *row = qobject_cast<ESPTableCellView *>(cell)) {
      row->mountButton()->setBusy(row->rowKey() == _busyPartition);
    }
  }
}
