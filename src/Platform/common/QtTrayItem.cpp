#include "Platform/common/QtTrayItem.h"

#include <QGuiApplication>

QtTrayItem::QtTrayItem() : _icon(this) {
  _icon.setToolTip(QGuiApplication::applicationDisplayName());
  connect(&_icon, &QSystemTrayIcon::activated, this,
          [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) emit activated();
          });
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
