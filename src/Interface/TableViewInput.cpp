// The table's input: pointer, wheel, keyboard, and how the focus moves through the rows.

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "Interface/TableView.h"

void TableView::mousePressEvent(QMouseEvent *event) {
  const qint64 row = (event->position().toPoint().y() + _scrollBar->value()) / rowHeight();
  if (event->button() == Qt::LeftButton && row < _numberOfRows) changeSelection(row);
}

void TableView::wheelEvent(QWheelEvent *event) {
  // Never passed on, not even at either end: nothing around the table scrolls.
  QCoreApplication::sendEvent(_scrollBar, event);
  event->accept();
}

void TableView::keyPressEvent(QKeyEvent *event) {
  const qint64 page = std::max(1, viewHeight() / rowHeight() - 1);
  const Stop focus = focusedStop();
  const qint64 from = focus.row >= 0 ? focus.row : _selectedRow;
  const qint64 last = _numberOfRows - 1;
  qint64 to = 0;
  switch (event->key()) {
    case Qt::Key_Up:
      to = from < 0 ? last : from - 1;
      break;
    case Qt::Key_Down:
      to = from < 0 ? firstRowInView() : from + 1;
      break;
    case Qt::Key_PageUp:
      to = from - page;
      break;
    case Qt::Key_PageDown:
      to = from + page;
      break;
    case Qt::Key_Home:
      break;
    case Qt::Key_End:
      to = last;
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  if (last < 0) return;
  setFocus(Qt::TabFocusReason);
  changeSelection(std::clamp<qint64>(to, 0, last));
}

void TableView::changeSelection(qint64 row) {
  scrollRowToVisible(row);
  if (row == _selectedRow) return;
  _selectedRow = row;
  update();
  if (TableCellView *cell = cellAtRow(row)) {
    QAccessibleEvent focus(cell, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
  }
  if (_delegate) _delegate->tableViewSelectionDidChange(this);
}

void TableView::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  update();
  // When Shift+Tab moves the focus into the table, it goes to the last button.
  if (event->reason() == Qt::BacktabFocusReason) focusRowFrom(_numberOfRows - 1, false);
}

void TableView::focusOutEvent(QFocusEvent *event) {
  QWidget::focusOutEvent(event);
  update();
}

TableView::Stop TableView::focusedStop() const {
  const QWidget *focused = window()->focusWidget();
  for (const auto &[row, cell] : _cells) {
    if (!cell->isAncestorOf(focused)) continue;
    return {row, cell->controls().indexOf(focused)};
  }
  return {};
}

bool TableView::focusNextPrevChild(bool next) {
  if (_isReloading) {
    // A button with the focus was disabled or hidden. Its neighbours are not in place yet.
    setFocus(Qt::OtherFocusReason);
    return true;
  }
  const Stop from = focusedStop();
  if (from.row < 0) {
    if (!next) return leave(false);
    return focusRowFrom(_selectedRow >= 0 ? _selectedRow : firstRowInView(), true) || leave(true);
  }
  const QList<QWidget *> controls = cellAtRow(from.row)->controls();
  const qsizetype control = from.control + (next ? 1 : -1);
  if (control >= 0 && control < controls.size()) {
    scrollRowToVisible(from.row);
    controls[control]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  if (focusRowFrom(from.row + (next ? 1 : -1), next)) return true;
  if (next) return leave(true);
  setFocus(Qt::TabFocusReason);
  return true;
}

bool TableView::focusRowFrom(qint64 row, bool next) {
  for (; row >= 0 && row < _numberOfRows; row += next ? 1 : -1) {
    scrollRowToVisible(row);
    const TableCellView *cell = cellAtRow(row);
    const QList<QWidget *> controls = cell ? cell->controls() : QList<QWidget *>();
    if (controls.isEmpty()) continue;
    QWidget *control = next ? controls.first() : controls.last();
    control->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}

bool TableView::leave(bool next) {
  const auto neighbour = [next](const QWidget *widget) {
    return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
  };
  for (QWidget *widget = neighbour(this); widget != this; widget = neighbour(widget)) {
    const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
    if (!takesTab || !widget->isEnabled() || !widget->isVisible() || isAncestorOf(widget)) continue;
    if (widget->window() != window()) continue;
    widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}
