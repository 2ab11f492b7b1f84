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
  int arrowInset;    // the tip's least distance from a corner
  int screenMargin;  // the free space between the panel's sides and the edge of the screen
};

struct PopoverScreen {
  QRect whole;
  QRect available;  // the area that bars leave to windows
};

/// Places a panel of this size at the anchor, on the anchor's `preferredEdge` (top or bottom), or on
/// the other side when only that side has room. The panel and its arrow lie within the available area
/// where they fit. For an anchor in a bar at the side of the screen, the panel is beside the anchor,
/// without an arrow. For a null anchor, the panel is without an arrow at the end of the screen's
/// widest bar, the usual place of trays (`endsAtRight` in a bar along the top or bottom), or in the
/// middle where there is no bar.
PopoverPlacement placePopover(const QSize &panel, const QRect &anchor, Qt::Edge preferredEdge,
                              const PopoverScreen &screen, const PopoverMetrics &metrics,
                              bool endsAtRight = true);
