#include "Interface/StatusItem.h"

#include <QApplication>

#include "Foundation/Clock.h"
#include "Platform/Desktop.h"

namespace {

constexpr std::chrono::milliseconds kToggleGuard{250};

}  // namespace

StatusItem::StatusItem(std::unique_ptr<TrayItem> trayItem, const Clock &clock)
    : _clock(clock), _trayItem(std::move(trayItem)) {
  connect(_trayItem.get(), &TrayItem::activated, this, &StatusItem::activated);
}

StatusItem::~StatusItem() = default;

void StatusItem::setImage(const QIcon &image) {
  _trayItem->setImage(image);
}

void StatusItem::setOpen(bool open) {
  if (open == _isOpen) return;
  _isOpen = open;
  (open ? _openedAt : _closedAt) = _clock.now();
  _trayItem->setHighlighted(open);
}

void StatusItem::setMenu(QMenu *menu) {
  _trayItem->setMenu(menu);
}

QRect StatusItem::anchor() const {
  return _trayItem->place();
}

void StatusItem::activated() {
  const auto isWithin = [now = _clock.now()](const auto &moment, std::chrono::milliseconds time) {
    return moment && now - *moment < time;
  };
  // This click may also have made the desktop close the popover.
  if (isWithin(_closedAt, kToggleGuard)) return;
  if (!_isOpen) return emit action();
  // The second click of a double click must not undo the first one.
  const std::chrono::milliseconds doubleClick(QApplication::doubleClickInterval());
  if (!isWithin(_openedAt, doubleClick)) emit dismissal();
}

#include "moc_StatusItem.cpp"
