#pragma once

// An item in the tray as Qt makes it: a status item on macOS, the X11 tray protocol on Linux.

#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>

#include "Platform/Desktop.h"

class QtTrayItem final : public TrayItem {
 public:
  /// Who shows the menu: the tray, at a right click, or we, because the tray would at every click.
  enum class MenuBy { Tray, Us };
  explicit QtTrayItem(MenuBy menuBy = MenuBy::Tray);

  void setImage(const QIcon &image) override;
  void setMenu(QMenu *menu) override;
  QRect place() const override { return _icon.geometry(); }
  QString kind() const override;
  void showMessage(const QString &title, const QString &text) override;

 private:
  void noteClick(QSystemTrayIcon::ActivationReason reason);

  QSystemTrayIcon _icon;
  MenuBy _menuBy;
  QPointer<QMenu> _menu;
};
