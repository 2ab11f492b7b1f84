#include <QAction>
#include <QDesktopServices>

#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "ESPTableCellView.h"
#include "Foundation/Paths.h"
#include "Interface/CheckBox.h"
#include "Interface/InputGate.h"
#include "Interface/RowButton.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

/// While a row action is under way, the row's button shows it, and no other user action can start.
class AppDelegate::RowAction {
 public:
  RowAction(AppDelegate &delegate, const QString &partition)
      : _delegate(delegate), _queueHold(delegate._mainQueue), _inputGate(delegate._popover) {
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
  MainQueue::Hold _queueHold;
  InputGate _inputGate;  // destroyed first: its destructor serves the event loop once more
};

// Titles are copied before anything else: while the service works, the list may be rebuilt and the
// button retitled.

void AppDelegate::mountOrUmount(RowButton *sender) {
  if (sender != nullptr) mountOrUmount(QString(sender->title()));
}

void AppDelegate::openEsp(RowButton *sender) {
  if (sender != nullptr) openEsp(QString(sender->title()));
}

void AppDelegate::mountOrUmount(const QString &title) {
  // A screen reader presses buttons, and a panel chooses from the menu, without an input event, so the
  // input gate alone does not prevent a second action.
  if (_busyPartition.has_value()) return;
  const QStringList pieces = title.split(u' ');
  const QString verb = pieces.value(0);
  const QString partition = pieces.value(1);

  const RowAction underWay(*this, partition);
  if (verb == "mount"_L1) {
    DiskArbitrator::mountPartition(partition, std::nullopt);
  } else {
    // The mixed state counts as on here, but not for the show-all box.
    DiskArbitrator::umountPartition(partition, _forceUmountCheck->state() != CheckBox::kOff);
  }
}

void AppDelegate::openEsp(const QString &title) {
  if (_busyPartition.has_value()) return;
  const QString path = title.split("open "_L1).value(1);
  if (path == "(null)"_L1 || path == "N/A"_L1 || !path.startsWith(u'/')) return;
  // Checked first because the file manager may report nothing. A slow volume is opened all the
  // same: the file manager waits for it.
  using enum LookAtPath::Access;
  const auto access = _platform.volumeFiles().look(path).access;
  if (access == Nothing) return complain(tr("%1 is not there").arg(path));
  if (access == Closed) return complain(tr("you may not read %1").arg(path));
  if (!QDesktopServices::openUrl(urlOfPath(path))) {
    complain(tr("no file manager could be started for %1").arg(path));
  }
}

void AppDelegate::showAllDisks(CheckBox *sender) {
  _showAll = sender->state() == CheckBox::kOn;
  refreshListsOrLog();
}

void AppDelegate::showBusyButtons() {
  for (QAction *action : std::as_const(_rowActions)) action->setEnabled(!_busyPartition);
  for (TableCellView *cell : _tableView->visibleCells()) {
    if (auto *row = qobject_cast<ESPTableCellView *>(cell)) {
      row->mountButton()->setBusy(row->rowKey() == _busyPartition);
    }
  }
}
