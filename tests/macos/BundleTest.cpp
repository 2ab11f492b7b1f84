// What the bundle says of itself; the system shows nothing, or the wrong thing, where it is wrong.

#include <gtest/gtest.h>

#include "Platform/common/FileSystemFiles.h"

TEST(Bundle, IsAnAgentWithAnIconForEveryScreen) {
  const FileSystemFiles files{QString()};
  const QVariantMap info = files.propertyList(KELDRA_INFO_PLIST);
  EXPECT_EQ(info.value("LSUIElement"), true);
  EXPECT_EQ(info.value("NSHighResolutionCapable"), true);
  EXPECT_EQ(info.value("CFBundleExecutable"), "Keldra");
  EXPECT_EQ(info.value("CFBundleShortVersionString"), "1.6");
  EXPECT_EQ(files.image(KELDRA_BUNDLE_ICON).value_or(QImage()).width(), 1024);
}
