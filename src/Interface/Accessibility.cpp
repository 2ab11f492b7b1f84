#include "Interface/Accessibility.h"

#include <QAccessibleWidget>

#include "Interface/Announcement.h"
#include "Interface/EmptyView.h"
#include "Interface/Popover.h"
#include "Interface/RowButton.h"
#include "Interface/RowTextField.h"
#include "Interface/TableView.h"

namespace {

/// A widget whose children are the parts that exist when a client asks. A client may ask by an
/// outdated index.
class AccessibleParent : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  int childCount() const override { return static_cast<int>(parts().size()); }
  QAccessibleInterface *child(int index) const override {
    QObject *part = parts().value(index);
    return part ? QAccessible::queryAccessibleInterface(part) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface *child) const override {
    return static_cast<int>(parts().indexOf(child->object()));
  }

 private:
  virtual QObjectList parts() const = 0;
};

class AccessibleList : public AccessibleParent {
 public:
  explicit AccessibleList(TableView *table)
      : AccessibleParent(table, QAccessible::List), _table(table) {}

  QAccessibleInterface *focusChild() const override {
    TableCellView *cell = _table->cellAtRow(_table->selectedRow());
    if (_table->hasFocus() && cell) return QAccessible::queryAccessibleInterface(cell);
    return QAccessibleWidget::focusChild();
  }

 private:
  QObjectList parts() const override {
    const std::vector<TableCellView *> cells = _table->visibleCells();
    return {cells.begin(), cells.end()};
  }

  TableView *_table;
};

class AccessibleCell : public AccessibleParent {
 public:
  explicit AccessibleCell(TableCellView *cell)
      : AccessibleParent(cell, QAccessible::ListItem), _cell(cell) {}

  QString text(QAccessible::Text kind) const override {
    // The name that is read aloud has the same lines as the painted text.
    if (kind == QAccessible::Name) return _cell->textField()->printableLines().join(u'\n');
    return QAccessibleWidget::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const auto *table = qobject_cast<TableView *>(_cell->parentWidget());
    state.selectable = true;
    state.selected =
        table && table->selectedRow() >= 0 && table->cellAtRow(table->selectedRow()) == _cell;
    state.focusable = true;
    state.focused = state.selected && table->hasFocus();
    for (const RowButton *button : _cell->findChildren<RowButton *>()) {
      if (button->isBusy()) state.busy = true;
    }
    return state;
  }

 private:
  // Buttons alone: the cell's name covers its text and picture.
  QObjectList parts() const override {
    QObjectList shown;
    for (RowButton *button : _cell->findChildren<RowButton *>()) {
      if (!button->isHidden()) shown.append(button);
    }
    return shown;
  }

  TableCellView *_cell;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object) {
  if (auto *table = qobject_cast<TableView *>(object)) return new AccessibleList(table);
  if (auto *cell = qobject_cast<TableCellView *>(object)) return new AccessibleCell(cell);
  if (auto *announcement = qobject_cast<Announcement *>(object)) {
    return new QAccessibleWidget(announcement, QAccessible::Notification);
  }
  if (auto *empty = qobject_cast<EmptyView *>(object)) {
    return new QAccessibleWidget(empty, QAccessible::StaticText);
  }
  if (auto *popover = qobject_cast<Popover *>(object)) {
    return new QAccessibleWidget(popover, QAccessible::Window);
  }
  return nullptr;
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(makeInterface);
}
