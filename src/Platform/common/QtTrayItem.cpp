#include "Platform/common/QtTrayItem.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPainter>

namespace {

// Trays have no highlight, so the picture itself shows it. The tint suits any panel.
QPixmap highlighted(const QPixmap &picture) {
  const QColor tint(128, 128, 128, 90);
  constexpr qreal kRadiusShare = 0.2;
  QPixmap result(picture.size());
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(tint);
  const qreal radius = result.width() * kRadiusShare;
  painter.drawRoundedRect(result.rect(), radius, radius);
  painter.drawPixmap(result.rect(), picture);
  return result;
}

}  // namespace

QIcon highlighted(const QIcon &image) {
  QIcon icon;
  for (const QSize &size : image.availableSizes()) icon.addPixmap(highlighted(image.pixmap(size)));
  icon.setIsMask(image.isMask());
  return icon;
}

QtTrayItem::QtTrayItem(MenuBy menuBy) : _icon(this), _menuBy(menuBy) {
  _icon.setToolTip(QGuiApplication::applicationDisplayName());
  connect(&_icon, &QSystemTrayIcon::activated, this, &QtTrayItem::noteClick);
}

void QtTrayItem::setMenu(QMenu *menu) {
  _menu = menu;
  if (_menuBy == MenuBy::Tray) _icon.setContextMenu(menu);
}

void QtTrayItem::noteClick(QSystemTrayIcon::ActivationReason reason) {
  // The second click of a double click is told as such, and in place of an ordinary one.
  const bool isClick = reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick;
  if (isClick) emit activated();
  const bool asksForMenu = reason == QSystemTrayIcon::Context && _menuBy == MenuBy::Us;
  if (asksForMenu && _menu) _menu->popup(QCursor::pos());
}

void QtTrayItem::setImage(const QIcon &image) {
  _image = image;
  updateIcon();
}

void QtTrayItem::setHighlighted(bool highlighted) {
  _highlighted = highlighted;
  updateIcon();
}

void QtTrayItem::updateIcon() {
  if (_image.isNull()) return;
  _icon.setIcon(_highlighted ? highlighted(_image) : _image);
  _icon.show();
}

bool QtTrayItem::isShown() const {
  return QSystemTrayIcon::isSystemTrayAvailable();
}

QString QtTrayItem::kind() const {
  return isShown() ? TrayItem::tr("the window system's") : TrayItem::tr("none yet");
}

void QtTrayItem::showMessage(const QString &title, const QString &text) {
  _icon.showMessage(title, text, _icon.icon());
}
