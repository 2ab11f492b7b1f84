#include "Platform/linux/desktop/XSettings.h"

#include <gtest/gtest.h>

#include <QByteArrayList>

namespace {

const QByteArray kHead("\0\0\0\0\7\0\0\0", 8);
const QByteArray kInteger("\0\0\1\0A\0\0\0\0\0\0\0\1\0\0\0", 16);
const QByteArray kColor("\2\0\1\0C\0\0\0\0\0\0\0\1\2\3\4\5\6\7\10", 20);
const QByteArray kTheme("\1\0\15\0Net/ThemeName\0\0\0\0\0\0\0\6\0\0\0A-dark\0\0", 36);

QByteArray settings(const QByteArrayList &entries) {
  return kHead + QByteArray(1, static_cast<char>(entries.size())) + QByteArray(3, '\0') +
         entries.join();
}

TEST(XSettingsTest, FindsTextsAmongOtherSettings) {
  EXPECT_EQ(textSettings(settings({kInteger, kColor, kTheme})).value("Net/ThemeName"), "A-dark");
  QByteArray bigEndian("\1\0\0\0\0\0\0\7\0\0\0\1\1\0\0\1B\0\0\0\0\0\0\0\0\0\0\2xy\0\0", 32);
  EXPECT_EQ(textSettings(bigEndian).value("B"), "xy");
}

TEST(XSettingsTest, StopsAtTheFirstError) {
  const QByteArray whole = settings({kTheme, kTheme});
  for (qsizetype length = 0; length < whole.size(); ++length) {
    EXPECT_LE(textSettings(whole.left(length)).size(), 1) << length;
  }
  EXPECT_TRUE(textSettings(settings({QByteArray("\11\0\0\0", 4), kTheme})).isEmpty());
}

TEST(XSettingsTest, KnowsDarkThemesByTheirNames) {
  for (const char *dark : {"Adwaita-dark", "Greybird-dark", "BlackMATE", "Mint-Y-Dark-Aqua"}) {
    EXPECT_TRUE(isDarkThemeName(dark)) << dark;
  }
  for (const char *light : {"Adwaita", "Menta", "Arc-Darker", ""}) {
    EXPECT_FALSE(isDarkThemeName(light)) << light;
  }
}

}  // namespace
