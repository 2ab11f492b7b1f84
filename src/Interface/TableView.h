#pragma once

// A list with rows of one height and one column. The data source gives the number of rows, and the
// delegate gives the cell of each row that is in view; rows out of view have no cell.
//
//   table.setPrototype(u"MainCell"_s, [](QWidget *parent) { return new Cell(parent); });
//   table.setDelegate(&delegate);
//   table.setDataSource(&source);
//   table.reloadData();
//
// The delegate and the data source are not owned and must live as long as they are set.

#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "Interface/TableCellView.h"

class QScrollBar;
class TableView;

struct TableColumn {
  QString identifier;
};

class TableViewDataSource {
 public:
  virtual ~TableViewDataSource() = default;
  virtual qint64 numberOfRowsInTableView(TableView *tableView) = 0;
};

class TableViewDelegate {
 public:
  virtual ~TableViewDelegate() = default;

  /// The cell of a row, made by `TableView::makeView` and filled in. Null leaves the row empty.
  virtual TableCellView *tableView(TableView *tableView, const TableColumn &viewForTableColumn,
                                   qint64 row) = 0;

  /// A cell has been put into view for a row.
  virtual void tableView(TableView *tableView, QWidget *didAddRowView, qint64 forRow) = 0;

  /// The user has selected another row. Never called by a reload.
  virtual void tableViewSelectionDidChange(TableView *sender) = 0;
};

class TableView : public QWidget {
  Q_OBJECT

 public:
  using Prototype = std::function<TableCellView *(QWidget *parent)>;

  explicit TableView(QWidget *parent = nullptr);

  void setDelegate(TableViewDelegate *delegate) { _delegate = delegate; }
  void setDataSource(TableViewDataSource *dataSource) { _dataSource = dataSource; }

  /// Whether a group's heading stays in view while its rows scroll. There are no groups yet.
  void setFloatsGroupRows(bool floats) { _floatsGroupRows = floats; }

  /// Asks again for the number of rows and for every row in view. Keeps the scroll position, the
  /// selected index and the keyboard focus where the rows allow; destroys no button that is in its
  /// own action.
  void reloadData();

  /// A cell, recycled or new, for the delegate to fill in and return. Null if the identifier is not
  /// the prototype's. The table owns the cell.
  TableCellView *makeView(const QString &identifier);
  /// Sets how the cells of its column are made.
  void setPrototype(const QString &identifier, Prototype prototype);

  qint64 numberOfRows() const { return _numberOfRows; }

  /// -1 when no row is selected.
  qint64 selectedRow() const { return _selectedRow; }

  void scrollRowToVisible(qint64 row);

  /// The cells in view, from the top. A row without a cell is left out.
  std::vector<TableCellView *> visibleCells() const;

  /// Null when the row is not in view or has no cell.
  TableCellView *cellAtRow(qint64 row) const;

  int rowHeight() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// After a reload, when every row in view has been asked for.
  void reloaded();

 protected:
  void changeEvent(QEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

 private:
  // A possible place of the keyboard focus: the table itself (row -1) or one control of a row.
  struct Stop {
    qint64 row = -1;
    qsizetype control = -1;
  };
  using Cells = std::map<qint64, TableCellView *>;

  void layOut();
  void updateScrollBar();
  void showRowsInView();
  void fillRow(qint64 row);
  QRect placeOf(qint64 row) const;
  TableCellView *takeReusable();
  void letGo(TableCellView *cell);
  void dropRetired();
  qint64 firstRowInView() const;
  qint64 lastRowInView() const;
  Stop focusedStop() const;
  bool focusRowFrom(qint64 row, bool next);
  bool leave(bool next);
  void restoreFocus(const QString &rowKey, qsizetype control);
  int viewHeight() const;
  void changeSelection(qint64 row);

  TableViewDelegate *_delegate = nullptr;
  TableViewDataSource *_dataSource = nullptr;
  QScrollBar *_scrollBar;
  TableColumn _column;
  Prototype _prototype;
  Cells _cells;                             // in view, by row
  std::vector<TableCellView *> _spare;      // hidden, to be reused
  std::vector<TableCellView *> _retired;    // not to be reused, still in their own action
  std::vector<TableCellView *> _handedOut;  // made for the row that is being filled
  qint64 _rowBeingFilled = -1;
  Cells _formerCells;  // during a reload: the cell that each row had before
  bool _isReloading = false;
  bool _wasShown = false;
  qint64 _numberOfRows = 0;
  qint64 _selectedRow = -1;
  bool _floatsGroupRows = true;
};
