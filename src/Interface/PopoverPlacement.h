#pragma once

// Where a popover goes on its screen: plain geometry.

#include <QRect>
#include <Qt>
#include <optional>

struct PopoverPlacement {
  QRect panel;                        // in screen coordinates, without the arrow
  std::optional<Qt::Edge> arrowEdge;  // the panel's edge that carries the arrow; absent for none
  int arrowX = 0;                     // of the arrow's tip, from the panel's left
};

struct PopoverMetrics {
  int arrowHeight;   // from the panel's edge to the tip
  int arrowInset;    // the nearest that the tip comes to a corner
  int screenMargin;  // what stays free between the panel and the edge of the screen
};

/// Places a panel of this size at the anchor, on its `preferredEdge` (top or bottom), or on the
/// other side when only that one has room. `available` is the part of the screen that is free for
/// windows; the panel lies within it where it fits. An anchor in a bar at the side of the screen has
/// it beside it, a null one in the middle, both without an arrow.
PopoverPlacement placePopover(const QSize &panel, const QRect &anchor, Qt::Edge preferredEdge,
                              const QRect &available, const PopoverMetrics &metrics);
