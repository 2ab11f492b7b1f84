#include "Platform/linux/desktop/PlaceOfClick.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

// Two screens, the left one with a panel along its top.
const QList<ScreenArea> kScreens = {{{0, 0, 1280, 800}, {0, 28, 1280, 772}, 1},
                                    {{1280, 0, 1280, 800}, {1280, 0, 1280, 800}, 1}};
const QPoint kItem(1122, 14);

TEST(PlaceOfClick, UsesThePanelsPlaceOnlyNearThePointer) {
  EXPECT_EQ(placeOfClick({1110, 0}, kItem, kScreens), QPoint(1110, 0)) << "the item's corner";
  EXPECT_EQ(placeOfClick({0, 28}, kItem, kScreens), kItem) << "a place far from the pointer";
  EXPECT_EQ(placeOfClick({0, 0}, kItem, kScreens), kItem) << "a panel that does not know the place";
  EXPECT_EQ(placeOfClick(kItem, QPoint(500, 500), kScreens), kItem) << "activated by keyboard";
  EXPECT_EQ(placeOfClick({0, 28}, QPoint(500, 500), kScreens), QPoint(500, 500));
}

TEST(PlaceOfClick, UsesThePanelsPlaceWhenThePointerIsUnknown) {
  EXPECT_EQ(placeOfClick(kItem, std::nullopt, kScreens), kItem);
  EXPECT_EQ(placeOfClick({1300, 790}, std::nullopt, kScreens), QPoint(1300, 790))
      << "the panel hides itself";
  EXPECT_EQ(placeOfClick({0, 0}, std::nullopt, kScreens), std::nullopt);
  EXPECT_EQ(placeOfClick({9000, 5}, std::nullopt, kScreens), std::nullopt);
}

TEST(PlaceOfClick, TellsNativeFromScaledUnits) {
  const QList<ScreenArea> dense = {{{0, 0, 640, 400}, {0, 28, 640, 372}, 2}};
  EXPECT_EQ(placeOfClick({1122, 28}, QPoint(560, 13), dense), QPoint(561, 14));
  EXPECT_EQ(placeOfClick({561, 14}, QPoint(560, 13), dense), QPoint(561, 14));
  EXPECT_EQ(placeOfClick({1122, 28}, std::nullopt, dense), QPoint(561, 14));
  EXPECT_EQ(inPixels({561, 14}, {640, 400}, dense), QPoint(1122, 28));
  EXPECT_EQ(inPixels({561, 14}, {}, dense), QPoint(561, 14));
  const QPoint nonsense(std::numeric_limits<int>::max(), -1);
  EXPECT_EQ(inPixels(nonsense, {640, 400}, dense), nonsense);
}

}  // namespace
