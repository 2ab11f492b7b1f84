#pragma once

// The base class of a table's cells: a text, a picture and the controls that a subclass adds. The
// table owns its cells, shows them only while their rows are in view, and reuses them for other
// rows.

#include <QList>
#include <QWidget>

class ImageView;
class RowTextField;

class TableCellView : public QWidget {
  Q_OBJECT

 public:
  explicit TableCellView(QWidget *parent = nullptr);

  RowTextField *textField() const { return _textField; }
  ImageView *imageView() const { return _imageView; }

  /// Whether the cell may be reused for another row. A cell that may not is destroyed when its row
  /// leaves the view.
  virtual bool isReusable() const { return true; }

  /// Whether one of the controls is in the middle of its own action, which may be waiting in an
  /// event loop further up the stack. Such a cell is not destroyed.
  virtual bool isActing() const { return false; }

  /// Identifies the row in any order of rows: across a reload the keyboard focus stays on the row
  /// with this key.
  virtual QString rowKey() const { return {}; }

  /// The controls that can get the keyboard focus now, in order.
  virtual QList<QWidget *> controls() const { return {}; }

 private:
  RowTextField *_textField;
  ImageView *_imageView;
};
