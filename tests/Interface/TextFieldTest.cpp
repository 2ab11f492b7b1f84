#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QVariantAnimation>
#include <algorithm>

#include "Interface/Appearance.h"
#include "Interface/Look.h"
#include "Interface/MainInterface.h"
#include "Interface/TextField.h"

namespace {

class TextFieldTest : public testing::Test {
 protected:
  // Advances every fade, the latest first, so that an older fade that still acts fails the test.
  void pass(int milliseconds) {
    auto fades = field.findChildren<QVariantAnimation *>();
    std::reverse(fades.begin(), fades.end());
    for (QVariantAnimation *fade : fades) {
      if (fade->state() == QAbstractAnimation::Running) {
        fade->setCurrentTime(fade->currentTime() + milliseconds);
      }
    }
  }
  void expect(const QString &text, qreal opacity) {
    EXPECT_EQ(field.stringValue(), text);
    EXPECT_NEAR(field.opacity(), opacity, 0.01) << text.toStdString();
  }

  TextField field;
};

TEST_F(TextFieldTest, TextChangesWhileItIsInvisible) {
  field.setStringValue("before");
  field.setAnimatedStringValue("before");
  pass(300);
  expect("before", 1);
  field.setAnimatedStringValue("after");
  pass(299);
  expect("before", 0);
  pass(1);
  expect("after", 0);
  pass(500);
  expect("after", 0.25);  // slow at first
  pass(500);
  expect("after", 1);
}

TEST_F(TextFieldTest, TwoQuickFadesBothRunAndEndOpaque) {
  field.setAnimatedStringValue("first");
  pass(100);
  field.setAnimatedStringValue("second");
  field.setStringValue("");  // as opening the popover does
  pass(100);
  expect("", 0.2);
  pass(100);
  EXPECT_EQ(field.stringValue(), "first");
  pass(100);
  EXPECT_EQ(field.stringValue(), "second");
  pass(1000);
  expect("second", 1);
}

TEST(StatusLineTest, IsALabelAndAnnouncesItsTextWhileVisible) {
  const MainInterface interface;
  TextField *status = interface.statusTextField();
  QAccessibleInterface *label = QAccessible::queryAccessibleInterface(status);
  QAccessibleInterface *announcement = label->child(0);
  ASSERT_NE(announcement, nullptr);
  EXPECT_EQ(announcement->role(), QAccessible::Notification);
  status->setStringValue("said before it can be seen");
  interface.popover()->show();
  EXPECT_TRUE(announcement->state().invisible);
  status->setStringValue("disk0s1 mouted at /media/a");
  for (QAccessibleInterface *heard : {label, announcement}) {
    EXPECT_EQ(heard->text(QAccessible::Name), "disk0s1 mouted at /media/a");
  }
  EXPECT_FALSE(announcement->state().invisible);
  interface.popover()->close();
  interface.popover()->show();
  EXPECT_TRUE(announcement->state().invisible) << "an old message must not be read again";
}

void expectReadable(const QColor &one, const QColor &other, qreal ratio = 4.5) {
  EXPECT_GE(contrastRatio(one, other), ratio)
      << one.name().toStdString() << " and " << other.name().toStdString();
}

TEST(LookTest, AllTextsHaveEnoughContrastInLightAndDark) {
  for (const bool dark : {true, false}) {
    setDarkAppearance(dark);
    const QPalette palette = QApplication::palette();
    using Roles = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    for (const auto &[text, ground] : {Roles{QPalette::WindowText, QPalette::Window},
                                       {QPalette::ButtonText, QPalette::Button},
                                       {QPalette::Text, QPalette::Base},
                                       {QPalette::HighlightedText, QPalette::Highlight},
                                       {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
      expectReadable(palette.color(text), palette.color(ground));
    }
    const Look look(palette, QFont());
    EXPECT_EQ(look.isDark, dark);
    for (const QColor &text : {look.text, look.dimText}) expectReadable(look.selection, text);
  }
  for (const QRgb window : {0xefefefU, 0xffffffU, 0x2a2d34U, 0x000000U, 0x707070U, 0x909090U}) {
    QPalette palette{QColor(window)};
    palette.setColor(QPalette::Base, window);
    const Look look(palette, QFont());
    for (const QColor &text :
         {look.red, look.blue, look.accent, look.disabledText, look.text, look.dimText}) {
      expectReadable(text, look.ground);
    }
    expectReadable(look.outline, look.ground, 3);    // the mark of a box
    expectReadable(look.accent, look.selection, 3);  // the focus ring
  }
}

}  // namespace
