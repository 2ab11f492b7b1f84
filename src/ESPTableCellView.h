#pragma once

// The cell of a partition: its icon, three lines of text, and the two buttons that mount or unmount
// it and open its mount point.

#include "Interface/TableCellView.h"

class RowButton;

class ESPTableCellView : public TableCellView {
  Q_OBJECT

 public:
  explicit ESPTableCellView(QWidget *parent = nullptr);

  /// The mount button's title ends in the partition's BSD name.
  RowButton *mountButton() const { return _mountButton; }
  /// The cell takes ownership of the button and destroys the previous one.
  void setMountButton(RowButton *button);

  RowButton *openButton() const { return _openButton; }
  void setOpenButton(RowButton *button);

  /// The device node that this system's other tools use: the row's tooltip.
  void setDeviceNode(const QString &node);
  QString deviceNode() const { return toolTip(); }

  /// False for a cell whose mount button is disabled: the button would stay disabled in another
  /// row.
  bool isReusable() const override;
  bool isActing() const override;
  /// The partition's BSD name.
  QString rowKey() const override;
  QList<QWidget *> controls() const override;

 protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  void adopt(RowButton *&field, RowButton *button);
  void arrange();
  void showToolTip(const QPoint &globalPosition);

  RowButton *_mountButton = nullptr;
  RowButton *_openButton = nullptr;
};
