#include "Interface/Accessibility.h"

#include <QAbstractButton>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <algorithm>

#include "Interface/Announcement.h"
#include "Interface/Popover.h"
#include "Interface/RowButton.h"
#include "Interface/RowTextField.h"
#include "Interface/TableView.h"
#include "Interface/TextField.h"

namespace {

// Children are those that are there at the moment of the question. A client may ask by an index
// that it learned earlier, so every index is checked.
class AccessibleList : public QAccessibleWidget {
 public:
  explicit AccessibleList(TableView *table)
      : QAccessibleWidget(table, QAccessible::List), _table(table) {}

  int childCount() const override { return static_cast<int>(_table->visibleCells().size()); }

  QAccessibleInterface *child(int index) const override {
    const std::vector<TableCellView *> cells = _table->visibleCells();
    if (index < 0 || static_cast<size_t>(index) >= cells.size()) return nullptr;
    return QAccessible::queryAccessibleInterface(cells[static_cast<size_t>(index)]);
  }

  int indexOfChild(const QAccessibleInterface *child) const override {
    const std::vector<TableCellView *> cells = _table->visibleCells();
    const auto found = std::find(cells.begin(), cells.end(), child->object());
    return found == cells.end() ? -1 : static_cast<int>(found - cells.begin());
  }

  QAccessibleInterface *focusChild() const override {
    TableCellView *cell = _table->cellAtRow(_table->selectedRow());
    if (_table->hasFocus() && cell) return QAccessible::queryAccessibleInterface(cell);
    return QAccessibleWidget::focusChild();
  }

 private:
  TableView *_table;
};

class AccessibleCell : public QAccessibleWidget {
 public:
  explicit AccessibleCell(TableCellView *cell)
      : QAccessibleWidget(cell, QAccessible::ListItem), _cell(cell) {}

  QString text(QAccessible::Text kind) const override {
    // What is read aloud has as many lines as what is painted.
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
    for (const QWidget *button : shownButtons()) {
      const auto *rowButton = qobject_cast<const RowButton *>(button);
      if (rowButton && rowButton->isBusy()) state.busy = true;
    }
    return state;
  }

  int childCount() const override { return static_cast<int>(shownButtons().size()); }

  QAccessibleInterface *child(int index) const override {
    const QList<QWidget *> buttons = shownButtons();
    if (index < 0 || index >= buttons.size()) return nullptr;
    return QAccessible::queryAccessibleInterface(buttons[index]);
  }

  int indexOfChild(const QAccessibleInterface *child) const override {
    return static_cast<int>(shownButtons().indexOf(child->object()));
  }

 private:
  // The cell's name says what its text and picture show.
  QList<QWidget *> shownButtons() const {
    QList<QWidget *> buttons;
    for (auto *button : _cell->findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly)) {
      if (!button->isHidden()) buttons.append(button);
    }
    return buttons;
  }

  TableCellView *_cell;
};

class AccessibleAnnouncement : public QAccessibleObject {
 public:
  explicit AccessibleAnnouncement(Announcement *announcement)
      : QAccessibleObject(announcement), _announcement(announcement) {}

  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override {
    QAccessible::State state = parent()->state();
    state.invisible = state.invisible || _announcement->text().isEmpty();
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? _announcement->text() : QString();
  }
  QAccessibleInterface *parent() const override {
    return QAccessible::queryAccessibleInterface(_announcement->parent());
  }
  int childCount() const override { return 0; }
  QAccessibleInterface *child(int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface *) const override { return -1; }

 private:
  Announcement *_announcement;
};

class AccessibleTextField : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit AccessibleTextField(TextField *field)
      : QAccessibleWidget(field, QAccessible::StaticText), _field(field) {}

  void *interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    const bool named = !_field->accessibleName().isEmpty();
    if (kind == QAccessible::Name) return named ? _field->accessibleName() : _field->stringValue();
    if (kind == QAccessible::Description || kind == QAccessible::Value)
      return _field->stringValue();
    return QAccessibleWidget::text(kind);
  }

  int childCount() const override { return announcement() ? 1 : 0; }
  QAccessibleInterface *child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(announcement()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface *child) const override {
    return child->object() && child->object() == announcement() ? 0 : -1;
  }

  QString text(int startOffset, int endOffset) const override {
    return _field->stringValue().mid(startOffset, endOffset - startOffset);
  }
  int characterCount() const override { return static_cast<int>(_field->stringValue().size()); }

  // It has neither a cursor nor a selection nor attributes, and its characters have no places.
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  int selectionCount() const override { return 0; }
  void selection(int, int *startOffset, int *endOffset) const override {
    *startOffset = *endOffset = 0;
  }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint &) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int *startOffset, int *endOffset) const override {
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
  }

 private:
  Announcement *announcement() const { return _field->findChild<Announcement *>(); }

  TextField *_field;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object) {
  if (auto *table = qobject_cast<TableView *>(object)) return new AccessibleList(table);
  if (auto *cell = qobject_cast<TableCellView *>(object)) return new AccessibleCell(cell);
  if (auto *field = qobject_cast<TextField *>(object)) return new AccessibleTextField(field);
  if (auto *announcement = qobject_cast<Announcement *>(object)) {
    return new AccessibleAnnouncement(announcement);
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
