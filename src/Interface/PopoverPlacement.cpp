#include "Interface/PopoverPlacement.h"

#include <algorithm>

namespace {

// `low` wins when the range is empty, so a panel that does not fit starts at the near edge.
int clamped(int wished, int low, int high) {
  return std::max(low, std::min(wished, high));
}

// The possible positions of the panel's top left corner.
QRect roomFor(const QSize &panel, const QRect &available, const PopoverMetrics &metrics) {
  const int aboveAndBelow = std::max(metrics.screenMargin, metrics.arrowHeight);
  const QRect within = available.adjusted(metrics.screenMargin, aboveAndBelow,
                                          -metrics.screenMargin, -aboveAndBelow);
  return {within.topLeft(), within.size() - panel + QSize(1, 1)};
}

QPoint atEndOfBar(const QRect &room, const PopoverScreen &screen, bool endsAtRight) {
  const QMargins bars(screen.available.left() - screen.whole.left(),
                      screen.available.top() - screen.whole.top(),
                      screen.whole.right() - screen.available.right(),
                      screen.whole.bottom() - screen.available.bottom());
  const int widest = std::max({bars.left(), bars.top(), bars.right(), bars.bottom()});
  if (widest <= 0) return room.center();
  if (widest == bars.top()) return endsAtRight ? room.topRight() : room.topLeft();
  if (widest == bars.bottom()) return endsAtRight ? room.bottomRight() : room.bottomLeft();
  return widest == bars.left() ? room.bottomLeft() : room.bottomRight();
}

}  // namespace

PopoverPlacement placePopover(const QSize &panel, const QRect &anchor, Qt::Edge preferredEdge,
                              const PopoverScreen &screen, const PopoverMetrics &metrics,
                              bool endsAtRight) {
  const QRect &available = screen.available;
  const QRect room = roomFor(panel, available, metrics);
  const auto moved = [&](int left, int top) {
    return QRect(
        QPoint(clamped(left, room.left(), room.right()), clamped(top, room.top(), room.bottom())),
        panel);
  };
  if (anchor.isNull()) {
    const QPoint place = atEndOfBar(room, screen, endsAtRight);
    return {moved(place.x(), place.y()), std::nullopt, 0};
  }
  const QPoint tip = anchor.center();
  const int left = tip.x() - panel.width() / 2;
  const bool isBeside = anchor.right() < available.left() || anchor.left() > available.right();
  if (isBeside) return {moved(left, tip.y() - panel.height() / 2), std::nullopt, 0};

  const int below = anchor.bottom() + 1 + metrics.arrowHeight;
  const int above = anchor.top() - metrics.arrowHeight - panel.height();
  const bool prefersTop = preferredEdge == Qt::TopEdge;
  const bool over = prefersTop ? above >= room.top() || below > room.bottom()
                               : below > room.bottom() && above >= room.top();
  const QRect place = moved(left, over ? above : below);
  const int arrowX =
      clamped(tip.x() - place.left(), metrics.arrowInset, panel.width() - metrics.arrowInset);
  return {place, over ? Qt::BottomEdge : Qt::TopEdge, arrowX};
}
