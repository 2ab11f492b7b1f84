#pragma once

// A tray item made by Qt: a status item on macOS, the X11 tray protocol on Linux.

#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>

#include "Platform/Desktop.h"

/// The picture of a marked item.
QIcon highlighted(const QIcon &image);

class QtTrayItem : public TrayItem {
 public:
  /// Who shows the menu: the tray, at a right click, or this class, because the tray would at every
  /// click.
  enum class MenuBy { Tray, Us };
  explicit QtTrayItem(MenuBy menuBy = MenuBy::Tray);

  void setImage(const QIcon &image) override;
  void setHighlighted(bool highlighted) override;
  void setMenu(QMenu *menu) override;
  QRect place() const override { return _icon.geometry(); }
  bool isShown() const override;
  QString kind() const override;
  void showMessage(const QString &title, const QString &text) override;

 private:
  void updateIcon();
  void noteClick(QSystemTrayIcon::ActivationReason reason);

  QSystemTrayIcon _icon;
  QIcon _image;
  bool _highlighted = false;
  MenuBy _menuBy;
  QPointer<QMenu> _menu;
};
