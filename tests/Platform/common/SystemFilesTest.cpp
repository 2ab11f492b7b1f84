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

TEST(SystemVersion, IsReadFromTheFirstFileThatExists) {
  const QTemporaryDir root;
  const FileSystemFiles files(root.path());
  const QString folder = root.filePath("System/Library/CoreServices");
  EXPECT_EQ(minorVersion(files), 0);
  writeFile(folder + "/ServerVersion.plist", xmlWithVersion("10.7"));
  EXPECT_EQ(minorVersion(files), 7);
  writeFile(folder + "/SystemVersion.plist", xmlWithVersion("10.9.5"));
  EXPECT_EQ(minorVersion(files), 9);
  EXPECT_EQ(files.bundleResource("/System/Library", "none", "icns"), QString());
  EXPECT_EQ(files.bundleResource("/none", "none", "icns"), std::nullopt) << "no bundle";
  for (const QByteArray &noList :
       {xmlWithVersion(QByteArray(100'000, '1')), QByteArray("<plist><array/></plist>")}) {
    writeFile(folder + "/SystemVersion.plist", noList);
    EXPECT_EQ(minorVersion(files), 0);
  }
}
