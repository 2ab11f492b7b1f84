#include "Platform/linux/desktop/NotifierItem.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

const QString kItemPath = u"/StatusNotifierItem"_s;
const QString kMenuPath = u"/MenuBar"_s;

// The window system's coordinates, which do not know of scaling, as Qt's. Screens keep their
// origins in both. Absent where there is no screen.
std::optional<QPoint> scaledPlace(const QPoint &native) {
  for (const QScreen *screen : QGuiApplication::screens()) {
    const qreal ratio = screen->devicePixelRatio();
    const QPoint origin = screen->geometry().topLeft();
    const QRect place(origin, (QSizeF(screen->geometry().size()) * ratio).toSize());
    if (place.contains(native)) return origin + (QPointF(native - origin) / ratio).toPoint();
  }
  return std::nullopt;
}

// A panel tells the place in the window system's units or in scaled ones, and does not say which: the
// pointer tells, where a program may know it. Panels that do not know the place say 0, 0.
QRect placeOfClick(const QPoint &told) {
  const QPoint pointer = QCursor::pos();
  const QPoint scaled = scaledPlace(told).value_or(told);
  const auto distance = [&pointer](const QPoint &place) {
    return (place - pointer).manhattanLength();
  };
  QPoint place = distance(told) < distance(scaled) ? told : scaled;
  if (told.isNull()) place = pointer;
  return place.isNull() ? QRect() : QRect(place, QSize(1, 1));
}

}  // namespace

NotifierItem::NotifierItem(const QDBusConnection &bus)
    : _bus(bus),
      _exportedMenu(new NotifierMenu(&_menuObject)),
      _exported(new NotifierInterface(*this)) {
  _bus.registerObject(kItemPath, this, QDBusConnection::ExportAdaptors);
  _bus.registerObject(kMenuPath, &_menuObject, QDBusConnection::ExportAdaptors);
}

NotifierItem::~NotifierItem() {
  _bus.unregisterObject(kItemPath);
  _bus.unregisterObject(kMenuPath);
}

void NotifierItem::announce() {
  auto call = QDBusMessage::createMethodCall(kNotifierWatcher, kNotifierWatcherPath,
                                             kNotifierWatcher, u"RegisterStatusNotifierItem"_s);
  call << kItemPath;
  _bus.send(call);
}

void NotifierItem::setImage(const QIcon &image) {
  _pixmaps = pixmapsOf(image);
  emit _exported->NewIcon();
}

void NotifierItem::setMenu(QMenu *menu) {
  _menu = menu;
  _exportedMenu->setMenu(menu);
}

void NotifierItem::activate(const QPoint &place) {
  _place = placeOfClick(place);
  // Later: a row action may be under way in what it opens, and the panel waits for our answer.
  QMetaObject::invokeMethod(this, &TrayItem::activated, Qt::QueuedConnection);
}

void NotifierItem::popUpMenu(const QPoint &place) {
  if (_menu) _menu->popup(placeOfClick(place).topLeft());
}

QString NotifierInterface::id() const {
  return QCoreApplication::applicationName();
}

QString NotifierInterface::title() const {
  return QGuiApplication::applicationDisplayName();
}

QDBusObjectPath NotifierInterface::menu() const {
  return QDBusObjectPath(kMenuPath);
}

// The window that is shown next finds it there.
void NotifierInterface::ProvideXdgActivationToken(const QString &token) {
  qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}
