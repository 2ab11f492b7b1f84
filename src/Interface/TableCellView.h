#pragma once

// The base of what a table shows in a row: a text, a picture and whatever controls a subclass adds.
// The table owns its cells, shows them only while their rows are in view, and uses them again for
// other rows.

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

  /// Whether the cell may be handed to another row. One that may not is dropped when its row is let
  /// go.
  virtual bool isReusable() const { return true; }

  /// Whether one of the controls is in the middle of its own action, which may be waiting in an
  /// event loop further up the stack. Such a cell is not destroyed.
  virtual bool isActing() const { return false; }

  /// Tells the rows apart, whatever their order: the keyboard focus follows it across a reload.
  virtual QString rowKey() const { return {}; }

  /// The controls that the keyboard can reach now, in their order.
  virtual QList<QWidget *> controls() const { return {}; }

 private:
  RowTextField *_textField;
  ImageView *_imageView;
};
