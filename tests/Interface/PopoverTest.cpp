#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include "Foundation/Clock.h"
#include "Interface/Popover.h"
#include "Interface/StatusItem.h"
#include "Platform/simulated/SimulatedDesktop.h"

using namespace std::chrono_literals;

namespace {

/// The place of a panel of 470 by 400, and of the arrow's tip, if there is one.
QString at(const QRect &item, const QRect &available, bool endsAtRight = true) {
  const QRect whole(0, 0, 1280, 800);
  const PopoverPlacement place =
      placePopover({470, 400}, item, Qt::BottomEdge, {whole, available}, {9, 6, 6}, endsAtRight);
  const QString text = QString("%1,%2").arg(place.panel.left()).arg(place.panel.top());
  if (!place.arrowEdge) return text;
  const int tip = place.panel.left() + place.arrowX;
  return text + (place.arrowEdge == Qt::TopEdge ? " ^" : " v") + QString::number(tip);
}

TEST(PopoverPlacementTest, IsAtTheItemAndWithinTheScreen) {
  const QRect screen(0, 26, 1280, 742);  // a panel along the top
  EXPECT_EQ(at({600, 1, 24, 24}, screen), "376,35 ^611") << "below the bar";
  EXPECT_EQ(at({1256, 1, 24, 24}, screen), "804,35 ^1267");
  EXPECT_EQ(at({-1280, 301, 4, 24}, screen.translated(-1280, 300)), "-1274,335 ^-1268");
  EXPECT_EQ(at({600, 775, 24, 24}, screen.translated(0, -26)), "376,333 v611");
  const QRect betweenBars(30, 0, 1220, 800);
  EXPECT_EQ(at({3, 500, 24, 24}, betweenBars), "36,311");
  EXPECT_EQ(at({1253, 780, 24, 24}, betweenBars), "774,391");
  EXPECT_EQ(at({300, 0, 20, 20}, {0, 0, 320, 200}), "6,9 ^309") << "too small a screen";
}

TEST(PopoverPlacementTest, WithoutAnAnchorIsAtTheEndOfTheWidestBar) {
  EXPECT_EQ(at({}, {0, 0, 1280, 800}), "405,200");
  EXPECT_EQ(at({}, {0, 30, 1280, 750}), "804,39");
  EXPECT_EQ(at({}, {0, 20, 1280, 750}, false), "6,361");
  EXPECT_EQ(at({}, {30, 0, 1250, 800}), "36,391");
}

class PopoverTest : public testing::Test, public PopoverDelegate {
 protected:
  PopoverTest() {
    auto *content = new QWidget;
    (new QVBoxLayout(content))->addWidget(rows);
    rows->setFixedSize(300, 100);
    popover.setContentView(content);
    popover.setDelegate(this);
    popover.setBehavior(Popover::Behavior::Transient);
    showAt(400);
  }

  void showAt(int left) { popover.showRelativeTo({left, 0, 24, 24}, Qt::BottomEdge); }
  bool popoverShouldDetach(Popover *) override { return false; }
  void popoverDidShow() override { said += "shown"; }
  void popoverWillClose() override { said += "closing"; }

  QStringList said;
  Popover popover;
  QWidget *rows = new QWidget;
};

TEST_F(PopoverTest, ReportsEachOpeningAndClosingOnce) {
  showAt(500);
  popover.setHeldOpen(true);
  emit qApp->applicationStateChanged(Qt::ApplicationInactive);
  popover.setHeldOpen(false);
  emit qApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_EQ(said, QStringList("shown"));
  emit qApp->applicationStateChanged(Qt::ApplicationInactive);
  popover.close();
  EXPECT_EQ(said, QStringList({"shown", "closing"}));
}

TEST_F(PopoverTest, FollowsTheSizeOfItsContentAndKeepsItsTop) {
  const auto panel = [this] { return popover.placement().panel; };
  const QRect before = panel();
  rows->setFixedHeight(260);
  EXPECT_TRUE(QTest::qWaitFor([&] { return panel().height() == before.height() + 160; }));
  EXPECT_EQ(panel().topLeft(), before.topLeft());
  rows->setFixedHeight(100000);
  EXPECT_TRUE(QTest::qWaitFor([&] { return panel().height() > before.height() + 160; }));
  EXPECT_LE(panel().bottom(), popover.screen()->availableGeometry().bottom());
}

TEST_F(PopoverTest, RepaintsItsFrameForAnotherShapeOrPalette) {
  const auto picture = [this] { return popover.grab().toImage(); };
  const QImage before = picture();
  showAt(20);
  EXPECT_NE(picture(), before) << "the arrow should have moved";
  showAt(400);
  EXPECT_EQ(picture(), before);
  popover.setPalette(QPalette(Qt::black));
  EXPECT_NE(picture(), before) << "the dark palette";
}

struct HandClock : Clock {
  std::chrono::milliseconds now() const override { return time; }
  std::chrono::milliseconds time{1000};
};

TEST(StatusItemTest, AClickOpensOrClosesAndADoubleClickCountsOnce) {
  HandClock clock;
  SimulatedDesktop desktop;
  StatusItem item(desktop.makeTrayItem(), clock);
  QStringList asked;
  QObject::connect(&item, &StatusItem::action, [&] { asked += "open"; });
  QObject::connect(&item, &StatusItem::dismissal, [&] { asked += "close"; });
  const auto clickAfter = [&](std::chrono::milliseconds time) {
    clock.time += time;
    desktop.clickItem();
    return std::exchange(asked, {}).join(", ");
  };
  const std::chrono::milliseconds doubleClick(QApplication::doubleClickInterval());

  EXPECT_EQ(clickAfter(0ms), "open");
  item.setOpen(true);
  EXPECT_EQ(clickAfter(doubleClick - 1ms), "") << "the rest of a double click";
  EXPECT_EQ(clickAfter(1ms), "close");
  item.setOpen(false);
  EXPECT_EQ(clickAfter(249ms), "") << "the click that has closed the popover";
  EXPECT_EQ(clickAfter(1ms), "open");
}

}  // namespace
