#include "Interface/TableView.h"

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <limits>
#include <utility>

#include "Interface/Look.h"
#include "Interface/ScrollBar.h"

namespace {

constexpr int kMostRowsInView = 8;

}  // namespace

TableView::TableView(QWidget *parent) : QWidget(parent), _scrollBar(new ScrollBar(this)) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  _scrollBar->hide();
  connect(_scrollBar, &QScrollBar::valueChanged, this, &TableView::showRowsInView);
}

TableView::~TableView() = default;

void TableView::setDelegate(TableViewDelegate *delegate) {
  _delegate = delegate;
}

void TableView::setDataSource(TableViewDataSource *dataSource) {
  _dataSource = dataSource;
}

void TableView::registerPrototype(const QString &identifier, Prototype prototype) {
  _prototypes.insert(identifier, std::move(prototype));
}

void TableView::reloadData() {
  const Stop focus = focusedStop();
  const QString focusedKey = focus.control < 0 ? QString() : cellAtRow(focus.row)->rowKey();

  _numberOfRows = _dataSource ? std::max<qint64>(0, _dataSource->numberOfRowsInTableView(this)) : 0;
  if (_selectedRow >= _numberOfRows) _selectedRow = -1;
  setFocusPolicy(_numberOfRows > 0 ? Qt::StrongFocus : Qt::NoFocus);
  const QScopedValueRollback<bool> reloading(_isReloading, true);
  _formerCells = std::exchange(_cells, {});
  updateScrollBar();
  showRowsInView();

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
  // Another partition's button must not inherit the next press of a key.
  setFocus(Qt::OtherFocusReason);
}

TableCellView *TableView::makeView(const QString &identifier) {
  TableCellView *cell = takeReusable(identifier);
  if (!cell) {
    const auto prototype = _prototypes.constFind(identifier);
    if (prototype == _prototypes.constEnd()) return nullptr;
    cell = (*prototype)(this);
    cell->setIdentifier(identifier);
  }
  _handedOut.push_back(cell);
  return cell;
}

TableCellView *TableView::takeReusable(const QString &identifier) {
  // The cell that the row had before a reload comes first: most rows have not changed, and what a
  // person is about to press stays the same widget.
  const auto former = _formerCells.find(_rowBeingFilled);
  if (former != _formerCells.end() && former->second->identifier() == identifier &&
      former->second->isReusable()) {
    TableCellView *cell = former->second;
    _formerCells.erase(former);
    return cell;
  }
  const auto spare = std::find_if(_spare.begin(), _spare.end(), [&](const TableCellView *cell) {
    return cell->identifier() == identifier;
  });
  if (spare == _spare.end()) return nullptr;
  TableCellView *cell = *spare;
  _spare.erase(spare);
  return cell;
}

void TableView::letGo(TableCellView *cell) {
  if (cell->isAncestorOf(window()->focusWidget())) setFocus(Qt::OtherFocusReason);
  cell->hide();
  if (cell->isReusable() && _prototypes.contains(cell->identifier())) {
    _spare.push_back(cell);
  } else {
    _retired.push_back(cell);
  }
}

void TableView::dropRetired() {
  // `deleteLater` alone would strike in the event loop in which a button's action is waiting.
  std::erase_if(_retired, [](TableCellView *cell) {
    if (cell->isActing()) return false;
    cell->deleteLater();
    return true;
  });
}

void TableView::showRowsInView() {
  const qint64 first = firstRowInView();
  const qint64 last = lastRowInView();
  for (auto at = _cells.begin(); at != _cells.end();) {
    if (at->first >= first && at->first <= last) {
      placeCell(at->second, at->first);
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
  static const TableColumn kColumn{QStringLiteral("MainCell")};
  if (!_delegate) return;
  _rowBeingFilled = row;
  TableCellView *cell = _delegate->tableView(this, kColumn, row);
  for (TableCellView *made : std::exchange(_handedOut, {})) {
    if (made != cell) letGo(made);
  }
  if (!cell) return;
  _cells[row] = cell;
  placeCell(cell, row);
  cell->show();
  _scrollBar->raise();  // it lies on the rows' margin
  _delegate->tableView(this, cell, row);
}

void TableView::placeCell(TableCellView *cell, qint64 row) {
  const auto top = static_cast<int>(row * rowHeight() - _scrollBar->value());
  cell->setGeometry(0, top, width(), rowHeight());
}

int TableView::rowHeight() const {
  return Look(this).rowHeight();
}

int TableView::viewHeight() const {
  // Before it is shown the table has no size worth mention; it has its rows ready all the same.
  return isVisible() ? height() : sizeHint().height();
}

qint64 TableView::firstRowInView() const {
  return _scrollBar->value() / rowHeight();
}

qint64 TableView::lastRowInView() const {
  // The height that the table is about to get, when rows have come, counts already.
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
  _scrollBar->setSingleStep(rowHeight() / 3);  // a notch of the wheel is three of these
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

qint64 TableView::rowOfCell(const TableCellView *cell) const {
  for (const auto &[row, shown] : _cells) {
    if (shown == cell) return row;
  }
  return -1;
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
  updateScrollBar();
  showRowsInView();
}

void TableView::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  updateScrollBar();
  showRowsInView();
}

void TableView::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  updateScrollBar();
  showRowsInView();
}

void TableView::paintEvent(QPaintEvent *) {
  const Look look(this);
  const qreal inset = look.scaled(5);
  const int margin = look.margin();
  const qreal hairline = 1 / devicePixelRatio();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (qint64 row = firstRowInView(); row <= lastRowInView(); ++row) {
    const auto top = static_cast<int>(row * rowHeight() - _scrollBar->value());
    const QRectF place(0, top, width(), rowHeight());
    if (row == _selectedRow) {
      painter.setPen(hasFocus() ? QPen(look.accent(), 1) : QPen(Qt::NoPen));
      painter.setBrush(look.selection());
      painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), look.scaled(8),
                              look.scaled(8));
    }
    if (row > 0) {
      painter.fillRect(QRectF(margin, top, place.width() - 2 * margin, hairline), look.hairline());
    }
  }
  const bool byKeyboard = window()->testAttribute(Qt::WA_KeyboardFocusChange);
  if (hasFocus() && byKeyboard && _selectedRow < 0) {
    painter.setPen(QPen(look.accent(), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), look.scaled(8),
                            look.scaled(8));
  }
}
