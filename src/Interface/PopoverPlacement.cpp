#include "Interface/PopoverPlacement.h"

#include <algorithm>

namespace {

// The part that fits wins over the wish; what does not fit at all starts at the near edge.
int clamped(int wished, int low, int high) {
  return std::max(low, std::min(wished, high));
}

}  // namespace

PopoverPlacement placePopover(const QSize &panel, const QRect &anchor, Qt::Edge preferredEdge,
                              const QRect &available, const PopoverMetrics &metrics) {
  QRect place(QPoint(), panel);
  place.moveCenter(available.center());
  if (anchor.isNull()) return {place, std::nullopt, 0};

  const int below = anchor.bottom() + 1 + metrics.arrowHeight;
  const int above = anchor.top() - metrics.arrowHeight - panel.height();
  const int lowest = available.bottom() + 1 - metrics.screenMargin - panel.height();
  const int highest = available.top() + metrics.screenMargin;
  const bool prefersTop = preferredEdge == Qt::TopEdge;
  const bool over =
      prefersTop ? above >= highest || below > lowest : below > lowest && above >= highest;
  place.moveTop(clamped(over ? above : below, highest, lowest));

  const int tip = anchor.center().x();
  place.moveLeft(clamped(tip - panel.width() / 2, available.left() + metrics.screenMargin,
                         available.right() + 1 - metrics.screenMargin - panel.width()));
  const bool isBeside = anchor.right() < available.left() || anchor.left() > available.right();
  if (isBeside) {
    place.moveTop(clamped(anchor.center().y() - panel.height() / 2, highest, lowest));
    return {place, std::nullopt, 0};
  }
  const int arrowX =
      clamped(tip - place.left(), metrics.arrowInset, panel.width() - metrics.arrowInset);
  return {place, over ? Qt::BottomEdge : Qt::TopEdge, arrowX};
}
