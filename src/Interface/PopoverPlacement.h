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
  int screenMargin;  // what stays free between the panel's sides and the edge of the screen
};

struct PopoverScreen {
  QRect whole;
  QRect available;  // what bars leave to windows
};

/// Places a panel of this size at the anchor, on its `preferredEdge` (top or bottom), or on the
/// other side when only that one has room. The panel and its arrow lie within what is available where
/// they fit. An anchor in a bar at the side of the screen has it beside it, without an arrow. A null
/// one has it, without an arrow, at the end of the screen's widest bar, where trays are as a rule
/// (`endsAtRight` in a bar along the top or bottom), or in the middle where there is no bar.
PopoverPlacement placePopover(const QSize &panel, const QRect &anchor, Qt::Edge preferredEdge,
                              const PopoverScreen &screen, const PopoverMetrics &metrics,
                              bool endsAtRight = true);
