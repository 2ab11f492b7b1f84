#include <gtest/gtest.h>

#include <limits>

#include "support/TestMachine.h"

TEST(StatusIcon, DependsOnTheInterfaceStyleAndTheScaleFactor) {
  EXPECT_TRUE(isDarkInterfaceStyle("dARK"));
  for (const QVariant &light :
       {QVariant(), QVariant("Light"), QVariant(1), QVariant(QByteArray("Dark"))}) {
    EXPECT_FALSE(isDarkInterfaceStyle(light)) << light.typeName();
  }
  EXPECT_EQ(statusImageSide(1.99), 18);
  EXPECT_EQ(statusImageSide(2.0), 36);
  EXPECT_EQ(statusImageSide(std::numeric_limits<qreal>::quiet_NaN()), 18);
}

TEST(StatusIcon, FollowsTheThemeWhileTheProgramRuns) {
  TestMachine machine(twoEspMachine());
  machine.interface.popover()->close();
  const auto shown = [&] { return machine.desktop.item->shownImage.pixmap(72).toImage(); };
  const auto pictured = [](const char *name) { return QIcon(name).pixmap(72).toImage(); };
  EXPECT_EQ(shown(), pictured(":/normal.png"));
  machine.desktop.style = "Dark";
  emit machine.desktop.interfaceThemeChanged();
  EXPECT_EQ(shown(), pictured(":/Dark.png"));
  EXPECT_TRUE(machine.desktop.item->shownImage.availableSizes().contains(QSize(18, 18)));
}
