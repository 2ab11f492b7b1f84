#include "Platform/linux/desktop/LinuxTrayItem.h"

#include <QGuiApplication>
#include <utility>

#include "Platform/common/QtTrayItem.h"
#include "Platform/linux/desktop/NotifierItem.h"
#include "Platform/linux/desktop/StatusPictures.h"

LinuxTrayItem::LinuxTrayItem(MessageBus &sessionBus) : _bus(sessionBus), _hosts(_bus) {
  registerNotifierTypes();
  connect(&_hosts, &NotifierHosts::answered, this, &LinuxTrayItem::follow);
  connect(&_bus, &MessageBus::lost, this, [this] {
    if (std::exchange(_notifier, nullptr) != nullptr) _item.reset();
  });
}

LinuxTrayItem::~LinuxTrayItem() = default;

void LinuxTrayItem::follow(bool notifierHostIsPresent) {
  if (!notifierHostIsPresent) {
    if (_item == nullptr || _notifier != nullptr) useTrayOfX11();
    _notifier = nullptr;
    return;
  }
  if (_notifier == nullptr) {
    auto item = std::make_unique<NotifierItem>(_bus.connection());
    _notifier = item.get();
    use(std::move(item));
  }
  _notifier->announce();
}

void LinuxTrayItem::useTrayOfX11() {
  _item.reset();
  // Qt's own item checks once for a panel, finds none, and then uses the X11 protocol.
  if (QGuiApplication::platformName() == QLatin1String("xcb")) use(std::make_unique<QtTrayItem>());
}

void LinuxTrayItem::use(std::unique_ptr<TrayItem> item) {
  _item = std::move(item);
  connect(_item.get(), &TrayItem::activated, this, &TrayItem::activated);
  _item->setMenu(_menu);
  if (_hasImage) _item->setImage(statusPicture());
  _item->setHighlighted(_highlighted);
}

void LinuxTrayItem::setImage(const QIcon & /*image*/) {
  if (std::exchange(_hasImage, true)) return;
  if (_item) _item->setImage(statusPicture());
}

void LinuxTrayItem::setHighlighted(bool highlighted) {
  _highlighted = highlighted;
  if (_item) _item->setHighlighted(highlighted);
}

void LinuxTrayItem::setMenu(QMenu *menu) {
  _menu = menu;
  if (_item) _item->setMenu(menu);
}

QRect LinuxTrayItem::place() const {
  return _item ? _item->place() : QRect();
}

bool LinuxTrayItem::isShown() const {
  return _item && _item->isShown();
}

QString LinuxTrayItem::kind() const {
  return _item ? _item->kind() : QString();
}

void LinuxTrayItem::showMessage(const QString &title, const QString &text) {
  if (_item) _item->showMessage(title, text);
}
