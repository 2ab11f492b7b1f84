#include "Platform/common/QtTrayItem.h"

#include <QCursor>
#include <QGuiApplication>

QtTrayItem::QtTrayItem(MenuBy menuBy) : _icon(this), _menuBy(menuBy) {
  _icon.setToolTip(QGuiApplication::applicationDisplayName());
  connect(&_icon, &QSystemTrayIcon::activated, this, &QtTrayItem::noteClick);
}

void QtTrayItem::setMenu(QMenu *menu) {
  _menu = menu;
  if (_menuBy == MenuBy::Tray) _icon.setContextMenu(menu);
}

void QtTrayItem::noteClick(QSystemTrayIcon::ActivationReason reason) {
  if (reason == QSystemTrayIcon::Trigger) emit activated();
  const bool asksForMenu = reason == QSystemTrayIcon::Context && _menuBy == MenuBy::Us;
  if (asksForMenu && _menu) _menu->popup(QCursor::pos());
}

void QtTrayItem::setImage(const QIcon &image) {
  _icon.setIcon(image);
  _icon.show();
}

QString QtTrayItem::kind() const {
  return QSystemTrayIcon::isSystemTrayAvailable() ? TrayItem::tr("the window system's")
                                                  : TrayItem::tr("none yet");
}

void QtTrayItem::showMessage(const QString &title, const QString &text) {
  _icon.showMessage(title, text, _icon.icon());
}
