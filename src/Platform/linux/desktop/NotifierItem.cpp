#include "Platform/linux/desktop/NotifierItem.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <utility>

#include "Platform/common/QtTrayItem.h"
#include "Platform/linux/desktop/PlaceOfClick.h"
#include "Platform/linux/desktop/StatusPictures.h"

using namespace Qt::StringLiterals;

namespace {

const QString kItemPath = u"/StatusNotifierItem"_s;
const QString kMenuPath = u"/MenuBar"_s;

// Longer than GNOME on X11 takes to hear of its own launch: a refusal before that leaves the pointer busy.
constexpr auto kRefusalDelay = std::chrono::milliseconds(100);
// After which a click is acted on without the shell's answer, in milliseconds.
constexpr int kShellsTime = 200;

QRect pointRect(const QPoint &place) {
  return {place, QSize(1, 1)};
}

}  // namespace

NotifierItem::NotifierItem(const QDBusConnection &bus)
    : _bus(bus),
      _exportedMenu(new NotifierMenu(&_menuObject)),
      _exported(new NotifierInterface(*this)),
      _iconFolder(statusPictureFolder()) {
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
  _image = image;
  emit _exported->NewIcon();
}

void NotifierItem::setHighlighted(bool highlighted) {
  if (std::exchange(_highlighted, highlighted) != highlighted) emit _exported->NewIcon();
}

NotifierPixmaps NotifierItem::pixmaps() const {
  return pixmapsOf(_highlighted ? highlighted(_image) : _image);
}

QString NotifierItem::iconName() const {
  return _iconFolder.isEmpty() ? QString() : statusPictureName(_highlighted);
}

void NotifierItem::setMenu(QMenu *menu) {
  _menu = menu;
  _exportedMenu->setMenu(menu);
}

void NotifierItem::activate(const QPoint &place) {
  // GNOME reports places in units of its own, of which an X server with a scale may have several pixels each.
  auto question =
      QDBusMessage::createMethodCall(u"org.gnome.Shell"_s, u"/org/gnome/Shell/Introspect"_s,
                                     u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
  question << u"org.gnome.Shell.Introspect"_s << u"ScreenSize"_s;
  question.setAutoStartService(false);
  auto *call = new QDBusPendingCallWatcher(_bus.asyncCall(question, kShellsTime), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, place] {
    call->deleteLater();
    const QDBusPendingReply<QDBusVariant> size = *call;  // an error on other desktops
    const QSize shell = size.isError() ? QSize() : qdbus_cast<QSize>(size.value().variant());
    const QList<ScreenArea> screens = screenAreas();
    const auto clicked = placeOfClick(inPixels(place, shell, screens), knownPointer(), screens);
    if (clicked) _place = pointRect(*clicked);
    emit activated();
  });
}

void NotifierItem::popUpMenu(const QPoint &place) {
  if (_menu) _menu->popup(placeOfClick(place, knownPointer(), screenAreas()).value_or(QPoint()));
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

void NotifierInterface::ProvideXdgActivationToken(const QString & /*token*/,
                                                  const QDBusMessage &message) {
  message.setDelayedReply(true);
  QTimer::singleShot(kRefusalDelay, this, [this, message] {
    _item.bus().send(message.createErrorReply(QDBusError::UnknownMethod, u"no window needs it"_s));
  });
}

#include "moc_NotifierItem.cpp"
