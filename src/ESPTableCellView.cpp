#include "ESPTableCellView.h"

#include <QHelpEvent>
#include <QStyle>

#include "Interface/ImageView.h"
#include "Interface/Look.h"
#include "Interface/PlainText.h"
#include "Interface/RowButton.h"
#include "Interface/RowTextField.h"

ESPTableCellView::ESPTableCellView(QWidget *parent) : TableCellView(parent) {
  setMountButton(new RowButton);
  setOpenButton(new RowButton);
}

void ESPTableCellView::setMountButton(RowButton *button) {
  adopt(_mountButton, button);
}

void ESPTableCellView::setOpenButton(RowButton *button) {
  adopt(_openButton, button);
}

void ESPTableCellView::adopt(RowButton *&field, RowButton *button) {
  if (field == button) return;
  if (field) field->deleteLater();
  field = button;
  button->setParent(this);
  button->installEventFilter(this);
  arrange();
}

void ESPTableCellView::setDeviceNode(const QString &node) {
  setToolTip(node);
}

bool ESPTableCellView::isReusable() const {
  return _mountButton->isEnabled();
}

bool ESPTableCellView::isActing() const {
  return _mountButton->isActing() || _openButton->isActing();
}

QString ESPTableCellView::rowKey() const {
  return _mountButton->title().section(u' ', 1, 1);
}

QList<QWidget *> ESPTableCellView::controls() const {
  QList<QWidget *> controls;
  for (RowButton *button : {_mountButton, _openButton}) {
    if (!button->isHidden() && button->isEnabled()) controls.append(button);
  }
  return controls;
}

bool ESPTableCellView::event(QEvent *event) {
  if (event->type() == QEvent::ToolTip) {
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos());
    return true;
  }
  const bool isOther =
      event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange;
  if (isOther) arrange();
  return TableCellView::event(event);
}

void ESPTableCellView::showToolTip(const QPoint &globalPosition) {
  const QStringList whole = textField()->isShortened() ? textField()->lines() : QStringList();
  showPlainToolTip(this, globalPosition, whole + QStringList(deviceNode()));
}

bool ESPTableCellView::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) arrange();
  return TableCellView::eventFilter(watched, event);
}

void ESPTableCellView::resizeEvent(QResizeEvent *event) {
  TableCellView::resizeEvent(event);
  arrange();
}

void ESPTableCellView::arrange() {
  if (!_mountButton || !_openButton) return;
  const Look look(this);
  const int margin = look.margin();
  const int image = look.imageSize();
  // Mirrored for people who read from right to left.
  const auto put = [this](QWidget *widget, const QRect &place) {
    widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
  };
  put(imageView(), {margin, (height() - image) / 2, image, image});

  const QSize button(look.rowButtonWidth(), look.rowButtonHeight());
  const int right = width() - margin - button.width();
  const bool opens = !_openButton->isHidden();
  const int column = opens ? 2 * button.height() + look.rowButtonGap() : button.height();
  const int top = (height() - column) / 2;
  put(_mountButton, {QPoint(right, top), button});
  put(_openButton, {QPoint(right, top + button.height() + look.rowButtonGap()), button});

  const int left = margin + image + look.scaled(12);
  put(textField(), {left, 0, right - look.scaled(14) - left, height()});
}

#include "moc_ESPTableCellView.cpp"
