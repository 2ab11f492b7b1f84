// The files that the program writes: the settings, the login item, the unit numbers.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <csignal>

#include "Platform/common/SettingsDefaults.h"
#include "Platform/linux/UnitNumbers.h"
#include "Platform/linux/XdgLoginItems.h"
#include "support/Files.h"

namespace {

ino_t inodeOf(const QString &path) {
  struct stat status {};
  lstat(path.toLocal8Bit(), &status);
  return status.st_ino;
}

class OwnFilesTest : public testing::Test {
 protected:
  QString path(const QString &name) const { return root.filePath("own/" + name); }
  QByteArray content(const QString &name) const { return contentOf(path(name)); }
  QStringList names() const {
    return QDir(path({})).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
  }

  /// Sets the check box's setting, and numbers the disks. Returns the log's text.
  std::string writeAll(bool isOn) const {
    testing::internal::CaptureStderr();
    SettingsDefaults settings(path("settings.ini"));
    settings.object("RunAtload");
    settings.setBool("RunAtload", isOn);
    settings.synchronize();
    XdgLoginItems(path({}), "/bin/true").insertOwnItem();
    UnitNumbers units(BlockDevices(root.path()), UnitFile(path("units"), "boot"));
    EXPECT_EQ(units.unitsOf({{"sda", 8}}), QList{0}) << "the number must not depend on the file";
    return testing::internal::GetCapturedStderr();
  }

  QTemporaryDir root;
};

}  // namespace

TEST_F(OwnFilesTest, AreNotChangedWhenTheDiskIsFull) {
  const QList<std::pair<QString, QByteArray>> files = {
      {"settings.ini", "[General]\nRunAtload=false\n"},
      {"keldra.desktop", "[Desktop Entry]\nExec=/bin/true\nHidden=true\n"},
      {"units", "of another boot"}};
  for (const auto &[name, text] : files) writeFile(path(name), text);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{8, limit.rlim_max};
  const auto former = signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  writeAll(true);
  const bool isRemoved = QFile::remove(path("keldra.desktop"));
  writeAll(true);
  setrlimit(RLIMIT_FSIZE, &limit);
  signal(SIGXFSZ, former);
  EXPECT_TRUE(isRemoved);
  EXPECT_EQ(names(), QStringList({"settings.ini", "units"})) << "no empty or temporary file";
  EXPECT_EQ(content("settings.ini"), files[0].second);
  EXPECT_EQ(content("units"), files[2].second);
}

TEST_F(OwnFilesTest, NeverReplaceOtherKindsOfFiles) {
  const std::pair<const char *, std::function<bool(const QString &)>> kinds[] = {
      {"a pipe", [](const QString &name) { return mkfifo(name.toLocal8Bit(), 0600) == 0; }},
      {"a folder", [](const QString &name) { return QDir().mkdir(name); }},
      {"a link to nothing", [](const QString &name) { return QFile::link("nothing", name); }},
      {"a file without end", [](const QString &name) {
         writeFile(name, "");
         return truncate(name.toLocal8Bit(), 3'000'000'000) == 0;
       }}};
  for (const QString name : {"settings.ini", "settings.ini.new", "units", "units.new"}) {
    for (const auto &[what, make] : kinds) {
      QDir().mkpath(path({}));
      ASSERT_TRUE(make(path(name)));
      // The program's own leftover is removed, and a corrupt file of numbers is replaced.
      const bool isOurs = QFileInfo(path(name)).isFile() && name != "settings.ini";
      const ino_t before = inodeOf(path(name));
      const std::string log = writeAll(false);
      EXPECT_EQ(before == inodeOf(path(name)), !isOurs) << what << " as " << name.toStdString();
      EXPECT_EQ(log.find(" is not ") == std::string::npos, isOurs) << log;
      QDir(path({})).removeRecursively();
    }
  }
}

TEST_F(OwnFilesTest, AreWrittenThroughALinkAndOnlyWhenTheyChange) {
  const QString real =
      writeFile(root.filePath("real"), "; mine\n[General]\nx=1\n[Other]\nRunAtload=7");
  QFile::setPermissions(real, QFile::ReadOwner | QFile::WriteOwner);
  QDir().mkpath(path({}));
  ASSERT_TRUE(QFile::link(real, path("settings.ini")));
  writeFile(root.filePath("real.new"),
            "what a killed program left behind, longer than all the rest");
  EXPECT_EQ(writeAll(false), "");
  EXPECT_EQ(contentOf(real), "; mine\n[General]\nRunAtload=false\nx=1\n[Other]\nRunAtload=7");
  EXPECT_EQ(QFile::permissions(real) & QFile::ReadGroup, 0);
  EXPECT_TRUE(QFileInfo(path("settings.ini")).isSymLink());
  EXPECT_FALSE(QFile::exists(root.filePath("real.new")));
  const ino_t before = inodeOf(real);
  EXPECT_EQ(writeAll(false), "");
  EXPECT_EQ(inodeOf(real), before);
  EXPECT_EQ(SettingsDefaults(real).object("RunAtload"), "false");
}

TEST_F(OwnFilesTest, DoNotBlockWhileAnotherProgramHoldsTheLock) {
  writeFile(path("units.new"), "");
  const int other = open(path("units.new").toLocal8Bit(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  EXPECT_NE(writeAll(true).find("units is not written"), std::string::npos);
  EXPECT_EQ(names(), QStringList({"keldra.desktop", "settings.ini", "units.new"}));
  close(other);
}
