#pragma once

// The item in the present kind of tray: a panel with the StatusNotifierItem protocol, or else a
// tray with the X11 protocol. Panels start late, are killed and change; the item follows them, and
// waits while there is none.

#include <QIcon>
#include <QMenu>
#include <QPointer>

#include "Platform/Desktop.h"
#include "Platform/linux/desktop/NotifierHosts.h"

class NotifierItem;

class LinuxTrayItem final : public TrayItem {
 public:
  /// `sessionBus` must outlive this object.
  explicit LinuxTrayItem(MessageBus &sessionBus);
  ~LinuxTrayItem() override;

  /// Ignores the image and shows the backend's own picture, which suits panels of any colour.
  void setImage(const QIcon &image) override;
  void setHighlighted(bool highlighted) override;
  void setMenu(QMenu *menu) override;
  QRect place() const override;
  bool isShown() const override;
  QString kind() const override;
  void showMessage(const QString &title, const QString &text) override;

 private:
  void follow(bool notifierHostIsPresent);
  void useTrayOfX11();
  void use(std::unique_ptr<TrayItem> item);

  MessageBus &_bus;
  NotifierHosts _hosts;
  /// Null where there is no tray, and until the desktop has reported one.
  std::unique_ptr<TrayItem> _item;
  NotifierItem *_notifier = nullptr;  // _item, when it is one
  bool _hasImage = false;
  bool _highlighted = false;
  QPointer<QMenu> _menu;
};
