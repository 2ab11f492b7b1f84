#include "Interface/StatusItem.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include "Foundation/Clock.h"
#include "Interface/PlainText.h"

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

StatusItem::StatusItem(const Clock &clock, QObject *parent)
    : QObject(parent), _clock(clock), _trayIcon(this) {
  _trayIcon.setToolTip(QGuiApplication::applicationDisplayName());
  connect(&_trayIcon, &QSystemTrayIcon::activated, this, &StatusItem::activated);
}

void StatusItem::setImage(const QIcon &image) {
  _image = image;
  updateIcon();
  _trayIcon.show();
}

void StatusItem::setHighlighted(bool highlighted) {
  _highlighted = highlighted;
  updateIcon();
}

void StatusItem::setMenu(QMenu *menu) {
  _trayIcon.setContextMenu(menu);
}

void StatusItem::noteClosed() {
  _closedAt = _clock.now();
}

void StatusItem::notify(const QString &text) {
  _trayIcon.showMessage(QGuiApplication::applicationDisplayName(), withoutMarkup(text), _image);
}

QRect StatusItem::anchor() const {
  const QRect place = _trayIcon.geometry();
  return place.isNull() ? QRect(QCursor::pos(), QSize(1, 1)) : place;
}

void StatusItem::activated(QSystemTrayIcon::ActivationReason reason) {
  if (reason != QSystemTrayIcon::Trigger) return;
  if (_closedAt && _clock.now() - *_closedAt < kToggleGuard) return;
  emit action();
}

void StatusItem::updateIcon() {
  if (!_highlighted) {
    _trayIcon.setIcon(_image);
    return;
  }
  QIcon icon;
  for (const QSize &size : _image.availableSizes())
    icon.addPixmap(highlighted(_image.pixmap(size)));
  _trayIcon.setIcon(icon);
}
