#include "Platform/linux/desktop/LinuxTrayItem.h"

#include <QGuiApplication>

#include "Platform/common/QtTrayItem.h"
#include "Platform/linux/desktop/NotifierItem.h"

LinuxTrayItem::LinuxTrayItem(const QDBusConnection &sessionBus) : _bus(sessionBus), _hosts(_bus) {
  registerNotifierTypes();
  connect(&_hosts, &NotifierHosts::answered, this, &LinuxTrayItem::follow);
}

LinuxTrayItem::~LinuxTrayItem() = default;

void LinuxTrayItem::follow(bool notifierHostIsPresent) {
  if (!notifierHostIsPresent) {
    if (_item == nullptr || _notifier != nullptr) useTrayOfX11();
    _notifier = nullptr;
    return;
  }
  if (_notifier == nullptr) {
    auto item = std::make_unique<NotifierItem>(_bus);
    _notifier = item.get();
    use(std::move(item));
  }
  _notifier->announce();
}

void LinuxTrayItem::useTrayOfX11() {
  _item.reset();
  // Qt's own item looks for a panel once, finds none, and keeps to the X11 protocol.
  if (QGuiApplication::platformName() == QLatin1String("xcb")) use(std::make_unique<QtTrayItem>());
}

void LinuxTrayItem::use(std::unique_ptr<TrayItem> item) {
  _item = std::move(item);
  connect(_item.get(), &TrayItem::activated, this, &TrayItem::activated);
  _item->setMenu(_menu);
  if (!_image.isNull()) _item->setImage(_image);
}

void LinuxTrayItem::setImage(const QIcon &image) {
  _image = image;
  if (_item) _item->setImage(image);
}

void LinuxTrayItem::setMenu(QMenu *menu) {
  _menu = menu;
  if (_item) _item->setMenu(menu);
}

QRect LinuxTrayItem::place() const {
  return _item ? _item->place() : QRect();
}

QString LinuxTrayItem::kind() const {
  return _item ? _item->kind() : QString();
}

void LinuxTrayItem::showMessage(const QString &title, const QString &text) {
  if (_item) _item->showMessage(title, text);
}
