#include "Interface/TableView.h"

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <limits>
#include <utility>

#include "Interface/Look.h"
#include "Interface/Style.h"

namespace {

constexpr int kMostRowsInView = 8;

}  // namespace

TableView::TableView(QWidget *parent)
    : QWidget(parent), _scrollBar(Style::applied(new QScrollBar(Qt::Vertical, this))) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  _scrollBar->hide();
  connect(_scrollBar, &QScrollBar::valueChanged, this, &TableView::showRowsInView);
}

void TableView::setPrototype(const QString &identifier, Prototype prototype) {
  _column.identifier = identifier;
  _prototype = std::move(prototype);
}

void TableView::reloadData() {
  const Stop focus = focusedStop();
  const QString focusedKey = focus.control < 0 ? QString() : cellAtRow(focus.row)->rowKey();

  _numberOfRows = _dataSource ? std::max<qint64>(0, _dataSource->numberOfRowsInTableView(this)) : 0;
  if (_selectedRow >= _numberOfRows) _selectedRow = -1;
  setFocusPolicy(_numberOfRows > 0 ? Qt::StrongFocus : Qt::NoFocus);
  const QScopedValueRollback<bool> reloading(_isReloading, true);
  _formerCells = std::exchange(_cells, {});
  layOut();

  if (focus.control >= 0) restoreFocus(focusedKey, focus.control);
  for (const auto &[row, cell] : std::exchange(_formerCells, {})) letGo(cell);
  dropRetired();
  updateGeometry();
  update();
  emit reloaded();
}

void TableView::restoreFocus(const QString &rowKey, qsizetype control) {
  for (const auto &[row, cell] : _cells) {
    const QList<QWidget *> controls = cell->controls();
    if (cell->rowKey() != rowKey || controls.isEmpty()) continue;
    controls[std::min(control, controls.size() - 1)]->setFocus(Qt::OtherFocusReason);
    return;
  }
  // The next key press must not go to another partition's button.
  setFocus(Qt::OtherFocusReason);
}

TableCellView *TableView::makeView(const QString &identifier) {
  if (!_prototype || identifier != _column.identifier) return nullptr;
  TableCellView *cell = takeReusable();
  _handedOut.push_back(cell ? cell : _prototype(this));
  return _handedOut.back();
}

TableCellView *TableView::takeReusable() {
  // The row's cell from before the reload comes first: most rows have not changed, and the widget
  // that the user is about to press stays the same.
  const auto former = _formerCells.find(_rowBeingFilled);
  if (former != _formerCells.end() && former->second->isReusable()) {
    return _formerCells.extract(former).mapped();
  }
  if (_spare.empty()) return nullptr;
  TableCellView *cell = _spare.back();
  _spare.pop_back();
  return cell;
}

void TableView::letGo(TableCellView *cell) {
  if (cell->isAncestorOf(window()->focusWidget())) setFocus(Qt::OtherFocusReason);
  cell->hide();
  (cell->isReusable() ? _spare : _retired).push_back(cell);
}

void TableView::dropRetired() {
  // `deleteLater` alone would delete the cell in the nested event loop of a button's action.
  std::erase_if(_retired, [](TableCellView *cell) {
    if (cell->isActing()) return false;
    cell->deleteLater();
    return true;
  });
}

// Until the table is first shown, rows have no cells.
void TableView::layOut() {
  if (!_wasShown) return;
  updateScrollBar();
  showRowsInView();
}

void TableView::showRowsInView() {
  const qint64 first = firstRowInView();
  const qint64 last = lastRowInView();
  for (auto at = _cells.begin(); at != _cells.end();) {
    if (at->first >= first && at->first <= last) {
      at->second->setGeometry(placeOf(at->first));
      ++at;
    } else {
      letGo(at->second);
      at = _cells.erase(at);
    }
  }
  for (qint64 row = first; row <= last; ++row) {
    if (!_cells.contains(row)) fillRow(row);
  }
  dropRetired();
  update();
}

void TableView::fillRow(qint64 row) {
  if (!_delegate) return;
  _rowBeingFilled = row;
  TableCellView *cell = _delegate->tableView(this, _column, row);
  for (TableCellView *made : std::exchange(_handedOut, {})) {
    if (made != cell) letGo(made);
  }
  if (!cell) return;
  _cells[row] = cell;
  cell->setGeometry(placeOf(row));
  cell->show();
  _scrollBar->raise();  // the scroll bar overlaps the rows' margin
  _delegate->tableView(this, cell, row);
}

QRect TableView::placeOf(qint64 row) const {
  const auto top = static_cast<int>(row * rowHeight() - _scrollBar->value());
  return {0, top, width(), rowHeight()};
}

int TableView::rowHeight() const {
  return Look(this).rowHeight();
}

int TableView::viewHeight() const {
  // Before the table is shown its height is meaningless, but its rows must be ready.
  return isVisible() ? height() : sizeHint().height();
}

qint64 TableView::firstRowInView() const {
  return _scrollBar->value() / rowHeight();
}

qint64 TableView::lastRowInView() const {
  // Counts the height that the table is about to get for new rows, too.
  const int viewed = std::max(viewHeight(), sizeHint().height());
  const qint64 bottom = qint64{_scrollBar->value()} + viewed - 1;
  return std::min(_numberOfRows - 1, bottom / rowHeight());
}

void TableView::updateScrollBar() {
  const qint64 hidden = std::max<qint64>(0, _numberOfRows * rowHeight() - viewHeight());
  const QSignalBlocker blocker(_scrollBar);
  _scrollBar->setRange(0,
                       static_cast<int>(std::min<qint64>(hidden, std::numeric_limits<int>::max())));
  _scrollBar->setPageStep(viewHeight());
  _scrollBar->setSingleStep(rowHeight() / 3);  // the wheel scrolls three steps for a notch
  const int barWidth = _scrollBar->sizeHint().width();
  _scrollBar->setGeometry(width() - barWidth, 0, barWidth, height());
  _scrollBar->setVisible(hidden > 0);
}

void TableView::scrollRowToVisible(qint64 row) {
  const auto top = static_cast<int>(row * rowHeight());
  const int lowest = top + rowHeight() - viewHeight();
  _scrollBar->setValue(std::max(lowest, std::min(_scrollBar->value(), top)));
}

std::vector<TableCellView *> TableView::visibleCells() const {
  std::vector<TableCellView *> cells;
  for (const auto &[row, cell] : _cells) cells.push_back(cell);
  return cells;
}

TableCellView *TableView::cellAtRow(qint64 row) const {
  const auto found = _cells.find(row);
  return found == _cells.end() ? nullptr : found->second;
}

QSize TableView::sizeHint() const {
  const qint64 rows = std::clamp<qint64>(_numberOfRows, 1, kMostRowsInView);
  return {Look(this).popoverWidth(), static_cast<int>(rows) * rowHeight()};
}

QSize TableView::minimumSizeHint() const {
  return {sizeHint().width(), rowHeight()};
}

void TableView::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  updateGeometry();
  layOut();
}

void TableView::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  layOut();
}

void TableView::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  _wasShown = true;
  layOut();
}

void TableView::paintEvent(QPaintEvent *) {
  const Look look(this);
  const int inset = look.scaled(5);
  const int margin = look.margin();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const auto paintPanel = [&](const QRect &place, bool isRinged, const QBrush &brush) {
    painter.setPen(isRinged ? QPen(look.accent, 1) : QPen(Qt::NoPen));
    painter.setBrush(brush);
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), look.scaled(8),
                            look.scaled(8));
  };
  for (qint64 row = firstRowInView(); row <= lastRowInView(); ++row) {
    const QRect place = placeOf(row);
    if (row == _selectedRow) paintPanel(place, hasFocus(), look.selection);
    const QRectF line(margin, place.top(), place.width() - 2 * margin, 1 / devicePixelRatio());
    if (row > 0) painter.fillRect(line, look.hairline);
  }
  const bool byKeyboard = window()->testAttribute(Qt::WA_KeyboardFocusChange);
  if (hasFocus() && byKeyboard && _selectedRow < 0) paintPanel(rect(), true, Qt::NoBrush);
}

#include "moc_TableView.cpp"
