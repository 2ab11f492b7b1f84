#include "Interface/StatusItem.h"

#include <QApplication>
#include <QPainter>

#include "Foundation/Clock.h"
#include "Platform/Desktop.h"

namespace {

constexpr std::chrono::milliseconds kToggleGuard{250};

// Trays have no notion of a highlight, so the picture itself carries it. Its tint suits any panel.
QPixmap highlighted(const QPixmap &picture) {
  const QColor tint(128, 128, 128, 90);
  constexpr qreal kRadiusShare = 0.2;
  QPixmap result(picture.size());
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(tint);
  const qreal radius = result.width() * kRadiusShare;
  painter.drawRoundedRect(result.rect(), radius, radius);
  painter.drawPixmap(result.rect(), picture);
  return result;
}

}  // namespace

StatusItem::StatusItem(std::unique_ptr<TrayItem> trayItem, const Clock &clock)
    : _clock(clock), _trayItem(std::move(trayItem)) {
  connect(_trayItem.get(), &TrayItem::activated, this, &StatusItem::activated);
}

StatusItem::~StatusItem() = default;

void StatusItem::setImage(const QIcon &image) {
  _image = image;
  updateIcon();
}

void StatusItem::setHighlighted(bool highlighted) {
  if (highlighted == _highlighted) return;
  _highlighted = highlighted;
  (highlighted ? _openedAt : _closedAt) = _clock.now();
  updateIcon();
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
  // The desktop may have closed the popover because of this very click.
  if (isWithin(_closedAt, kToggleGuard)) return;
  if (!_highlighted) return emit action();
  // The second click of a double click wants what the first one wanted.
  const std::chrono::milliseconds doubleClick(QApplication::doubleClickInterval());
  if (!isWithin(_openedAt, doubleClick)) emit dismissal();
}

void StatusItem::updateIcon() {
  if (_image.isNull()) return;
  if (!_highlighted) return _trayItem->setImage(_image);
  QIcon icon;
  for (const QSize &size : _image.availableSizes())
    icon.addPixmap(highlighted(_image.pixmap(size)));
  _trayItem->setImage(icon);
}
