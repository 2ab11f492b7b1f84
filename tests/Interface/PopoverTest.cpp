#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "Foundation/Clock.h"
#include "Interface/Popover.h"
#include "Interface/StatusItem.h"
#include "Platform/simulated/SimulatedDesktop.h"

using namespace std::chrono_literals;

namespace {

constexpr PopoverMetrics kMetrics{9, 22, 6};
const QSize kPanel(470, 400);
const QRect kScreen(0, 26, 1280, 742);  // a panel along the top

PopoverPlacement at(const QRect &anchor, Qt::Edge edge = Qt::BottomEdge,
                    const QRect &screen = kScreen) {
  return placePopover(kPanel, anchor, edge, screen, kMetrics);
}

TEST(PopoverPlacementTest, HangsBelowItsAnchor) {
  const PopoverPlacement place = at({600, 1, 24, 24});
  EXPECT_EQ(place.panel, QRect(611 - 235, 34, 470, 400));
  EXPECT_EQ(place.arrowEdge, Qt::TopEdge);
  EXPECT_EQ(place.panel.left() + place.arrowX, 611);
}

TEST(PopoverPlacementTest, StaysOnTheScreenInEveryCorner) {
  for (const QRect &screen :
       {kScreen, kScreen.translated(1280, 300), kScreen.translated(-1280, -768)}) {
    const int left = screen.left();
    const int top = screen.top();
    for (const QPoint &corner : {QPoint(left, top - 25), QPoint(left + 1256, top - 25),
                                 QPoint(left, top + 718), QPoint(left + 1256, top + 718)}) {
      const PopoverPlacement place = at({corner, QSize(24, 24)}, Qt::BottomEdge, screen);
      EXPECT_TRUE(screen.contains(place.panel));
      EXPECT_EQ(place.arrowEdge, corner.y() < top ? Qt::TopEdge : Qt::BottomEdge);
      EXPECT_GE(place.arrowX, kMetrics.arrowInset);
      EXPECT_LE(place.arrowX, kPanel.width() - kMetrics.arrowInset);
    }
  }
}

TEST(PopoverPlacementTest, WithoutAnAnchorInTheMiddle) {
  const PopoverPlacement place = at({});
  EXPECT_EQ(place.arrowEdge, std::nullopt);
  EXPECT_EQ(place.panel.center(), kScreen.center());
}

TEST(PopoverPlacementTest, BesideAnItemInABarAtTheSide) {
  const QRect screen(30, 0, 1220, 800);  // a bar on either side
  const PopoverPlacement left = at({3, 500, 24, 24}, Qt::BottomEdge, screen);
  EXPECT_EQ(left.arrowEdge, std::nullopt);
  EXPECT_EQ(left.panel, QRect(36, 311, 470, 400));
  const PopoverPlacement right = at({1253, 780, 24, 24}, Qt::BottomEdge, screen);
  EXPECT_EQ(right.arrowEdge, std::nullopt);
  EXPECT_EQ(right.panel, QRect(774, 394, 470, 400));
}

TEST(PopoverPlacementTest, TooSmallAScreenShowsTheTop) {
  const QRect small(0, 0, 320, 200);
  const PopoverPlacement place = at({300, 0, 20, 20}, Qt::BottomEdge, small);
  EXPECT_EQ(place.panel.topLeft(), QPoint(6, 6));
}

struct Content : QWidget {
  QSize sizeHint() const override { return size_; }
  void grow(const QSize &size) {
    size_ = size;
    updateGeometry();
  }
  QSize size_{300, 100};
};

class PopoverTest : public testing::Test, public PopoverDelegate {
 protected:
  PopoverTest() {
    popover.setContentView(content);
    popover.setDelegate(this);
    popover.setBehavior(Popover::Behavior::Transient);
    popover.showRelativeTo({400, 0, 24, 24}, Qt::BottomEdge);
  }

  bool popoverShouldDetach(Popover *) override { return false; }
  void popoverDidShow() override { ++shown; }
  void popoverWillClose() override { ++closing; }

  int shown = 0;
  int closing = 0;
  Popover popover;
  Content *content = new Content;
};

TEST_F(PopoverTest, TellsOfEachOpeningAndClosingOnce) {
  popover.showRelativeTo({500, 0, 24, 24}, Qt::BottomEdge);
  EXPECT_EQ(shown, 1);
  QTest::keyClick(&popover, Qt::Key_Escape);
  EXPECT_FALSE(popover.isShown());
  popover.close();
  EXPECT_EQ(closing, 1);
}

TEST_F(PopoverTest, FollowsItsContentAndKeepsItsTop) {
  const QRect before = popover.placement().panel;
  EXPECT_EQ(before.size(), QSize(300, 100));
  content->grow({300, 260});
  EXPECT_TRUE(QTest::qWaitFor([&] { return content->height() == 260; }));
  EXPECT_EQ(popover.placement().panel.topLeft(), before.topLeft());
  content->grow({300, 100000});
  EXPECT_TRUE(QTest::qWaitFor([&] { return content->height() > 260; }));
  EXPECT_LE(popover.placement().panel.bottom(), popover.screen()->availableGeometry().bottom());
}

TEST_F(PopoverTest, PaintsItsFrameAnewForAnotherShapeOrPalette) {
  const auto picture = [this] { return popover.grab().toImage(); };
  const QImage before = picture();
  EXPECT_EQ(picture(), before);
  popover.showRelativeTo({401, 0, 24, 24}, Qt::BottomEdge);  // the arrow alone moves
  popover.showRelativeTo({400, 0, 24, 24}, Qt::BottomEdge);
  EXPECT_EQ(picture(), before);
  popover.showRelativeTo({20, 0, 24, 24}, Qt::BottomEdge);
  EXPECT_NE(picture(), before) << "the arrow is elsewhere";
  popover.showRelativeTo({400, 0, 24, 24}, Qt::BottomEdge);
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::black);
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::white);
  popover.setPalette(dark);
  EXPECT_NE(picture(), before) << "dark";
}

TEST_F(PopoverTest, ClosesWhenAnotherProgramIsActiveUnlessHeld) {
  popover.setHeldOpen(true);
  emit qApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_TRUE(popover.isShown());
  popover.setHeldOpen(false);
  emit qApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_TRUE(popover.isShown());
  emit qApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_FALSE(popover.isShown());
}

struct HandClock : Clock {
  std::chrono::milliseconds now() const override { return time; }
  std::chrono::milliseconds time{1000};
};

TEST(StatusItemTest, ClickOpensOrClosesAndASecondOneOfTheSameIntentDoesNothing) {
  HandClock clock;
  SimulatedDesktop desktop;
  StatusItem item(desktop.makeTrayItem(), clock);
  QStringList asked;
  QObject::connect(&item, &StatusItem::action, [&] { asked += "open"; });
  QObject::connect(&item, &StatusItem::dismissal, [&] { asked += "close"; });
  const std::chrono::milliseconds doubleClick(QApplication::doubleClickInterval());

  desktop.clickItem();
  item.setHighlighted(true);
  clock.time += doubleClick - 1ms;
  desktop.clickItem();
  EXPECT_EQ(asked, QStringList({"open"})) << "the rest of a double click";
  clock.time += 1ms;
  desktop.clickItem();
  EXPECT_EQ(asked, QStringList({"open", "close"}));
  item.setHighlighted(false);
  clock.time += 249ms;
  desktop.clickItem();
  EXPECT_EQ(asked, QStringList({"open", "close"})) << "the click that has closed it";
  clock.time += 1ms;
  desktop.clickItem();
  EXPECT_EQ(asked, QStringList({"open", "close", "open"}));
}

}  // namespace
