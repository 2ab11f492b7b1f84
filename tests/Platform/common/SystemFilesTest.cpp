#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "DiskArbitrator/SystemVersion.h"
#include "Platform/common/FileSystemFiles.h"
#include "support/Files.h"

namespace {

QByteArray xmlWithVersion(const QByteArray &version) {
  return R"(<?xml version="1.0"?><plist version="1.0"><dict><key>ProductVersion</key><string>)" +
         version + "</string><key>Build</key><integer>7</integer></dict></plist>";
}

}  // namespace

TEST(SystemVersion, IsReadFromTheFirstFileThatIsThere) {
  const QTemporaryDir root;
  const FileSystemFiles files(root.path());
  const QString folder = root.filePath("System/Library/CoreServices");
  EXPECT_EQ(minorVersion(files), 0);
  writeFile(folder + "/ServerVersion.plist", xmlWithVersion("10.7"));
  EXPECT_EQ(minorVersion(files), 7);
  writeFile(folder + "/SystemVersion.plist", xmlWithVersion("10.9.5"));
  EXPECT_EQ(minorVersion(files), 9);
  for (const QByteArray &noList :
       {xmlWithVersion("10.9").first(80), xmlWithVersion(QByteArray(100'000, '1')),
        QByteArray("<plist><array><string>10.9</string></array></plist>"), QByteArray()}) {
    writeFile(folder + "/SystemVersion.plist", noList);
    EXPECT_EQ(minorVersion(files), 0);
  }
}

TEST(SystemFiles, ABundleIsAFolderWithResources) {
  const QTemporaryDir root;
  const QString resources = "/a.bundle/Contents/Resources/";
  writeFile(root.path() + resources + "one.icns", "");
  writeFile(root.filePath("b.bundle"), "");
  const FileSystemFiles files(root.path());
  EXPECT_EQ(files.bundleResource("/a.bundle", "one", "icns"), resources + "one.icns");
  EXPECT_EQ(files.bundleResource("/a.bundle", "two", "icns"), QString());
  for (const char *bundle : {"/b.bundle", "/c.bundle"}) {
    EXPECT_FALSE(files.bundleResource(bundle, "one", "icns").has_value()) << bundle;
  }
}
