#pragma once

// The item in whichever kind of tray the desktop has at the moment: a panel that speaks the
// StatusNotifierItem protocol, or else a tray of the X11 protocol. Panels come late, are killed and
// change; the item follows, and waits where there is none.

#include <QIcon>
#include <QMenu>
#include <QPointer>

#include "Platform/Desktop.h"
#include "Platform/linux/desktop/NotifierHosts.h"

class NotifierItem;

class LinuxTrayItem final : public TrayItem {
 public:
  /// `sessionBus` must outlive this.
  explicit LinuxTrayItem(MessageBus &sessionBus);
  ~LinuxTrayItem() override;

  /// Shows a picture of the backend's own, for panels of any colour, in its place.
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
  /// Null where there is no tray, and until the desktop has told what it has.
  std::unique_ptr<TrayItem> _item;
  NotifierItem *_notifier = nullptr;  // _item, when it is one
  bool _hasImage = false;
  bool _highlighted = false;
  QPointer<QMenu> _menu;
};
