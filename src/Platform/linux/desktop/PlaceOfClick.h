#pragma once

// Where on the screen a person has clicked the item, as far as anybody knows.

#include <QList>
#include <QPoint>
#include <QRect>
#include <optional>

struct ScreenArea {
  QRect whole;
  QRect available;  // what panels leave to windows
  qreal ratio = 1;  // native pixels for each of the units of the rectangles
};

/// All screens, in the order of the window system.
QList<ScreenArea> screenAreas();

/// Whether a panel that takes its place from windows is there.
bool isOnPanel(const QPoint &place, const QList<ScreenArea> &screens);

/// The pointer's place where it can be known: on an X server of its own, not on one in a Wayland session, which hears
/// nothing of the pointer while that is over other programs' windows.
std::optional<QPoint> knownPointer();

/// Panels tell a place with each click, in the window system's units or in scaled ones, and some tell nonsense. It is
/// believed where it is near the pointer, or on a panel while the pointer is on none or unknown; the pointer otherwise.
/// Absent where there is nothing to believe.
std::optional<QPoint> placeOfClick(const QPoint &told, std::optional<QPoint> pointer,
                                   const QList<ScreenArea> &screens);
