#include "Platform/linux/desktop/PlaceOfClick.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace {

// The greatest distance from the pointer to a corner of the largest item.
constexpr int kNear = 64;

bool isOnScreen(const QPoint &place, const QList<ScreenArea> &screens) {
  return std::any_of(screens.begin(), screens.end(),
                     [&](const ScreenArea &screen) { return screen.whole.contains(place); });
}

// A screen's origin is the same in native and in scaled units.
QRect nativeArea(const ScreenArea &screen) {
  return {screen.whole.topLeft(), (QSizeF(screen.whole.size()) * screen.ratio).toSize()};
}

QList<QPoint> readings(const QPoint &told, const QList<ScreenArea> &screens) {
  if (told.isNull()) return {};  // the panel does not know the place
  QList<QPoint> all;
  for (const ScreenArea &screen : screens) {
    const QPoint origin = screen.whole.topLeft();
    if (!nativeArea(screen).contains(told)) continue;
    all += origin + (QPointF(told - origin) / screen.ratio).toPoint();
  }
  if (isOnScreen(told, screens)) all += told;
  return all;
}

}  // namespace

QList<ScreenArea> screenAreas() {
  QList<ScreenArea> areas;
  for (const QScreen *screen : QGuiApplication::screens()) {
    areas.append({screen->geometry(), screen->availableGeometry(), screen->devicePixelRatio()});
  }
  return areas;
}

bool isOnPanel(const QPoint &place, const QList<ScreenArea> &screens) {
  return std::any_of(screens.begin(), screens.end(), [&](const ScreenArea &screen) {
    return screen.whole.contains(place) && !screen.available.contains(place);
  });
}

std::optional<QPoint> knownPointer() {
  const bool isServerOfItsOwn = QGuiApplication::platformName() == QLatin1String("xcb") &&
                                qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  return isServerOfItsOwn ? std::optional(QCursor::pos()) : std::nullopt;
}

QPoint inPixels(const QPoint &told, const QSize &size, const QList<ScreenArea> &screens) {
  if (!QRect(QPoint(), size).contains(told)) return told;
  QRect all;
  for (const ScreenArea &screen : screens) all |= nativeArea(screen);
  const auto scaled = [](qint64 length, int to, int from) {
    return static_cast<int>(length * to / from);
  };
  return {scaled(told.x(), all.width(), size.width()),
          scaled(told.y(), all.height(), size.height())};
}

std::optional<QPoint> placeOfClick(const QPoint &told, std::optional<QPoint> pointer,
                                   const QList<ScreenArea> &screens) {
  const QList<QPoint> places = readings(told, screens);
  const auto onPanel = std::find_if(places.begin(), places.end(),
                                    [&](const QPoint &place) { return isOnPanel(place, screens); });
  if (pointer) {
    const auto distance = [&](const QPoint &place) { return (place - *pointer).manhattanLength(); };
    const auto nearest = std::min_element(
        places.begin(), places.end(),
        [&](const QPoint &one, const QPoint &other) { return distance(one) < distance(other); });
    if (nearest != places.end() && distance(*nearest) <= kNear) return *nearest;
    if (isOnPanel(*pointer, screens)) return pointer;
  }
  if (onPanel != places.end()) return *onPanel;
  if (pointer || places.isEmpty()) return pointer;
  return places.first();
}
