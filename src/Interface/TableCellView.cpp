#include "Interface/TableCellView.h"

#include <QAccessible>

#include "Interface/ImageView.h"
#include "Interface/RowTextField.h"

TableCellView::TableCellView(QWidget *parent)
    : QWidget(parent), _textField(new RowTextField(this)), _imageView(new ImageView(this)) {
  // Screen readers cache names, and a recycled cell shows another partition.
  connect(_textField, &RowTextField::stringValueChanged, this, [this] {
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
  });
}

#include "moc_TableCellView.cpp"
