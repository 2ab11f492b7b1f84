#include "Program.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <stdexcept>

#include "Application/Outlets.h"
#include "DiskArbitrator/DiskArbitrator.h"

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

void waitUntil(const std::function<bool()> &condition, const QString &what) {
  const QDeadlineTimer deadline(60s);
  // Some conditions change without an event that wakes the event loop.
  QTimer tick;
  tick.start(5ms);
  while (!condition()) {
    if (deadline.hasExpired()) throw std::runtime_error("waited in vain: " + what.toStdString());
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

PaintedTitle::PaintedTitle(const QString &title) : _title(title) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool PaintedTitle::eventFilter(QObject *watched, QEvent *event) {
  if (!_when && event->type() == QEvent::Paint) {
    const auto *button = qobject_cast<RowButton *>(watched);
    if (button != nullptr && button->title() == _title) _when = now();
  }
  return false;
}

Program::Program(Platform &platform) : _delegate(platform, _desktop) {
  connectOutlets(_interface, _delegate);
  _delegate.applicationDidFinishLaunching();
  _delegate.showPopover();
}

void Program::setShowsAll(bool showsAll) {
  CheckBox *box = _interface.showAllDisksCheck();
  box->setState(showsAll ? CheckBox::kOn : CheckBox::kOff);
  _delegate.showAllDisks(box);
}

QString Program::nameOf(const QString &device) const {
  for (const RowRecord &record : _delegate.tableViewContents()) {
    if (DiskArbitrator::findDeviceNode(record.ESP) == device) return record.ESP;
  }
  throw std::runtime_error("no row for " + device.toStdString());
}

void Program::scrollTo(const QString &name) {
  _interface.tableView()->scrollRowToVisible(rowOf(name));
}

void Program::click(const QString &name) {
  auto *cell = qobject_cast<ESPTableCellView *>(_interface.tableView()->cellAtRow(rowOf(name)));
  if (cell == nullptr) throw std::runtime_error("out of view: " + name.toStdString());
  QTest::mouseClick(cell->mountButton(), Qt::LeftButton);
}

qint64 Program::rowOf(const QString &name) const {
  const QVector<RowRecord> &rows = _delegate.tableViewContents();
  const auto isIt = [&](const RowRecord &record) { return record.ESP == name; };
  return std::find_if(rows.begin(), rows.end(), isIt) - rows.begin();
}
