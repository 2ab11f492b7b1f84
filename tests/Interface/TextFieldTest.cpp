#include <gtest/gtest.h>

#include <QApplication>
#include <QVariantAnimation>

#include "Interface/Appearance.h"
#include "Interface/Look.h"
#include "Interface/PlainText.h"
#include "Interface/TextField.h"

namespace {

// Time in the test's hand: moves every fade on, in the order in which they were started.
void pass(TextField &field, int milliseconds) {
  for (QVariantAnimation *fade : field.findChildren<QVariantAnimation *>()) {
    if (fade->state() == QAbstractAnimation::Running) {
      fade->setCurrentTime(fade->currentTime() + milliseconds);
    }
  }
}

bool isFading(const TextField &field) {
  const auto fades = field.findChildren<QVariantAnimation *>();
  return std::any_of(fades.begin(), fades.end(), [](const QVariantAnimation *fade) {
    return fade->state() == QAbstractAnimation::Running;
  });
}

TEST(TextFieldTest, TextChangesAtTheBottomOfTheFade) {
  TextField field;
  field.setStringValue("before");
  field.setAnimatedStringValue("after");
  EXPECT_EQ(field.opacity(), 1.0);
  pass(field, 299);
  EXPECT_EQ(field.stringValue(), "before");
  EXPECT_LT(field.opacity(), 0.01);
  pass(field, 1);
  EXPECT_EQ(field.stringValue(), "after");
  EXPECT_EQ(field.opacity(), 0.0);
  pass(field, 500);
  EXPECT_NEAR(field.opacity(), 0.25, 0.01);  // slow at first
  pass(field, 500);
  EXPECT_EQ(field.opacity(), 1.0);
  EXPECT_FALSE(isFading(field));
}

TEST(TextFieldTest, SameTextDoesNothing) {
  TextField field;
  field.setAnimatedStringValue(QString());
  field.setStringValue("shown");
  field.setAnimatedStringValue("shown");
  EXPECT_FALSE(isFading(field));
  EXPECT_EQ(field.opacity(), 1.0);
}

TEST(TextFieldTest, QuickSuccessionRunsBothAndEndsOpaque) {
  TextField field;
  field.setAnimatedStringValue("first");
  pass(field, 100);
  field.setAnimatedStringValue("second");
  field.setStringValue("");  // as opening the popover does
  pass(field, 200);
  EXPECT_EQ(field.stringValue(), "first");
  pass(field, 100);
  EXPECT_EQ(field.stringValue(), "second");
  pass(field, 1000);
  EXPECT_EQ(field.opacity(), 1.0);
  EXPECT_FALSE(isFading(field));
}

TEST(LookTest, ColoursReadOnTheirGround) {
  for (const QColor &window : {QColor(0xefefef), QColor(0xffffff), QColor(0x2a2d34),
                               QColor(Qt::black), QColor(0x707070), QColor(0x909090)}) {
    QPalette palette(window);
    palette.setColor(QPalette::Base, window);
    const Look look(palette, QFont());
    for (const QColor &color : {look.red(), look.blue(), look.accent(), look.text(), look.dimText(),
                                look.disabledText()}) {
      EXPECT_GE(contrastRatio(look.ground(), color), 4.5) << window.name().toStdString();
    }
    // The mark of a box and the ring of what has the keyboard.
    EXPECT_GE(contrastRatio(look.ground(), look.outline()), 3) << window.name().toStdString();
    EXPECT_GE(contrastRatio(look.selection(), look.accent()), 3) << window.name().toStdString();
  }
}

TEST(LookTest, RowsAndWindowsReadInLightAndDark) {
  using Roles = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
  for (const bool dark : {true, false}) {
    setDarkAppearance(dark);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Window).lightnessF() < 0.5F, dark);
    const Look look(palette, QFont());
    for (const QColor &text : {look.text(), look.dimText()}) {
      EXPECT_GE(contrastRatio(look.selection(), text), 4.5) << dark;
    }
    for (const auto &[text, ground] : {Roles{QPalette::WindowText, QPalette::Window},
                                       {QPalette::ButtonText, QPalette::Button},
                                       {QPalette::Text, QPalette::Base},
                                       {QPalette::HighlightedText, QPalette::Highlight},
                                       {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
      EXPECT_GE(contrastRatio(palette.color(text), palette.color(ground)), 4.5) << dark << text;
    }
  }
}

TEST(PlainTextTest, HostileCharactersAreShownAsSuch) {
  EXPECT_EQ(printable("EFI & Söhne 日本 <b>"), "EFI & Söhne 日本 <b>");
  EXPECT_EQ(printable("a\u202Eb\nc\u2028d\u0007"), "a\uFFFDb\uFFFDc\uFFFDd\uFFFD");
  EXPECT_EQ(printable(QString(QChar(0xD800))), QString(QChar::ReplacementCharacter));
}

}  // namespace
