#pragma once

// An item in the tray as Qt makes it: a status item on macOS, the X11 tray protocol on Linux.

#include <QSystemTrayIcon>

#include "Platform/Desktop.h"

class QtTrayItem final : public TrayItem {
 public:
  QtTrayItem();

  void setImage(const QIcon &image) override;
  void setMenu(QMenu *menu) override { _icon.setContextMenu(menu); }
  QRect place() const override { return _icon.geometry(); }
  QString kind() const override;
  void showMessage(const QString &title, const QString &text) override;

 private:
  QSystemTrayIcon _icon;
};
