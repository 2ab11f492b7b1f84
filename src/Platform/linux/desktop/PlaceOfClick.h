#pragma once

// Where on the screen the user has clicked the item, as far as known.

#include <QList>
#include <QPoint>
#include <QRect>
#include <optional>

struct ScreenArea {
  QRect whole;
  QRect available;  // the area that panels leave to windows
  qreal ratio = 1;  // native pixels for each unit of the rectangles
};

/// All screens, in the order of the window system.
QList<ScreenArea> screenAreas();

/// Whether the place is on a panel for which the desktop reserves space.
bool isOnPanel(const QPoint &place, const QList<ScreenArea> &screens);

/// The pointer's place if known: on a plain X server. The X server of a Wayland session does not see the
/// pointer while it is over other programs' windows.
std::optional<QPoint> knownPointer();

/// A place that was told in units of which all screens have `size`, in native pixels; the place itself if it
/// is outside, as every place is if the size is not known.
QPoint inPixels(const QPoint &told, const QSize &size, const QList<ScreenArea> &screens);

/// Panels report a place with each click, in the window system's units or in scaled ones; some report nonsense.
/// `told` is used if it is near the pointer, or on a panel while the pointer is on none or unknown; otherwise
/// the pointer. Absent if neither is known.
std::optional<QPoint> placeOfClick(const QPoint &told, std::optional<QPoint> pointer,
                                   const QList<ScreenArea> &screens);
