#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "DiskArbitrator/SystemVersion.h"
#include "Platform/common/BinaryPropertyList.h"
#include "Platform/common/FileSystemFiles.h"
#include "Platform/common/PropertyList.h"
#include "support/Files.h"

namespace {

QByteArray xmlWithVersion(const QByteArray &version) {
  return R"(<?xml version="1.0"?><plist version="1.0"><dict><key>ProductVersion</key><string>)" +
         version + "</string><key>Build</key><integer>7</integer></dict></plist>";
}

// {"a": "b"}
const QByteArray kSmallestBinary = QByteArray::fromHex(
    "62706c6973743030"
    "d10102"
    "5161"
    "5162"
    "080b0d"
    "0000000000000101"
    "0000000000000003"
    "0000000000000000"
    "000000000000000f");

}  // namespace

TEST(PropertyLists, ThatAreNoneAreEmpty) {
  EXPECT_EQ(dictionaryFromPropertyList(kSmallestBinary).value("a"), "b") << "that is one";
  for (const QByteArray &bytes :
       {QByteArray(), QByteArray("bplist00"), QByteArray("<plist><dict><key>a"),
        QByteArray(100, '\0'), QByteArray("<plist><array><string>a</string></array></plist>"),
        QByteArray(R"({"a": 1})")}) {
    EXPECT_TRUE(dictionaryFromPropertyList(bytes).isEmpty()) << bytes.constData();
  }
}

// The library would end the program.
TEST(PropertyLists, WithANulInATextAreEmpty) {
  for (QByteArray bytes : {kSmallestBinary, xmlWithVersion("b")}) {
    bytes[bytes.lastIndexOf('b')] = '\0';
    EXPECT_TRUE(dictionaryFromPropertyList(bytes).isEmpty());
  }
}

TEST(PropertyLists, ThatWouldTakeAllMemoryOrStackAreEmpty) {
  const auto nestedXml = [](int levels) {
    return "<plist version=\"1.0\"><dict><key>a</key>" + QByteArray("<array>").repeated(levels) +
           QByteArray("</array>").repeated(levels) +
           "<key>b</key><string>c</string></dict></plist>";
  };
  EXPECT_EQ(dictionaryFromPropertyList(nestedXml(10000)).value("b"), "c");
  EXPECT_TRUE(dictionaryFromPropertyList(nestedXml(1'000'000)).isEmpty());
  EXPECT_TRUE(dictionaryFromPropertyList(QByteArray("<array>").repeated(1'000'000)).isEmpty());

  // {"": [...]}, where each array holds the next one, or true at the end, so many times.
  const auto nestedBinary = [](int levels, int times) {
    const auto number = [](qsizetype value, int width) {
      return QByteArray::fromHex(QByteArray::number(value, 16).rightJustified(2 * width, '0'));
    };
    QByteArrayList objects = {QByteArray::fromHex("d100010002"), "\x50"};
    for (int next = 3; next < levels + 3; ++next) {
      objects += number(0xA0 + times, 1) + number(next, 2).repeated(times);
    }
    objects += "\x09";
    QByteArray bytes = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
      table += number(bytes.size(), 3);
      bytes += object;
    }
    return bytes + table + number(0x0302, 8) + number(objects.size(), 8) + number(0, 8) +
           number(bytes.size(), 8);
  };
  EXPECT_TRUE(isSoundBinaryPropertyList(nestedBinary(12, 2)));
  EXPECT_FALSE(isSoundBinaryPropertyList(nestedBinary(60, 2))) << "2 to the 60th objects";
  EXPECT_FALSE(isSoundBinaryPropertyList(nestedBinary(60000, 1)));
  EXPECT_TRUE(dictionaryFromPropertyList(nestedBinary(60, 2)).isEmpty());
}

TEST(SystemVersion, IsReadFromTheFirstFileThatIsThere) {
  const QTemporaryDir root;
  const FileSystemFiles files(root.path());
  const QString folder = root.filePath("System/Library/CoreServices");
  EXPECT_EQ(minorVersion(files), 0);
  writeFile(folder + "/ServerVersion.plist", xmlWithVersion("10.7"));
  EXPECT_EQ(minorVersion(files), 7);
  writeFile(folder + "/SystemVersion.plist", xmlWithVersion("10.9.5"));
  EXPECT_EQ(minorVersion(files), 9);
  for (const QByteArray &malformed :
       {xmlWithVersion("10.9").first(80), QByteArray(20'000'000, ' ')}) {
    writeFile(folder + "/SystemVersion.plist", malformed);
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
