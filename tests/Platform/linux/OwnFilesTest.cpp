// What the program writes for its user: the settings, the entry that starts it, the unit numbers.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>

#include "Platform/common/SettingsDefaults.h"
#include "Platform/linux/UnitNumbers.h"
#include "Platform/linux/XdgLoginItems.h"
#include "support/Files.h"

namespace {

class OwnFilesTest : public testing::Test {
 protected:
  QString path(const QString &name) const { return root.filePath("own/" + name); }
  QByteArray content(const QString &name) const { return contentOf(path(name)); }
  QStringList names() const {
    return QDir(path({})).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
  }

  /// Sets the box anew, and numbers the disks. Returns what the log says.
  std::string writeAll(bool isOn) const {
    testing::internal::CaptureStderr();
    SettingsDefaults settings(path("settings.ini"));
    settings.object("RunAtload");
    settings.setBool("RunAtload", isOn);
    settings.synchronize();
    XdgLoginItems(path({}), "/bin/true").insertOwnItem();
    UnitNumbers(BlockDevices(root.path()), UnitFile(path("units"), "boot")).unitsOf({{"sda", 8}});
    return testing::internal::GetCapturedStderr();
  }

  QTemporaryDir root;
};

/// No more room than for a few files, seen by this thread alone.
class SmallDisk {
 public:
  explicit SmallDisk(const QString &folder) : _folder(folder.toLocal8Bit()) {
    QDir().mkpath(folder);
    isThere = unshare(CLONE_NEWNS) == 0 &&
              mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
              mount("small", _folder.constData(), "tmpfs", 0, "size=64k") == 0;
  }
  ~SmallDisk() { umount(_folder.constData()); }
  void fill() const {
    QFile file(_folder + "/fill");
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (file.write(QByteArray(4096, 'x')) == 4096) continue;
  }

  bool isThere;

 private:
  QByteArray _folder;
};

}  // namespace

TEST_F(OwnFilesTest, StayAsTheyAreOnAFullDisk) {
  const SmallDisk disk(path({}));
  if (!disk.isThere) GTEST_SKIP() << "only root can make a small disk";
  writeFile(path("settings.ini"), "[General]\nRunAtload=false\n");
  writeFile(path("keldra.desktop"), "[Desktop Entry]\nExec=/bin/true\nHidden=true\n");
  writeFile(path("units"), "of another boot");
  disk.fill();
  const std::string log = writeAll(true);
  EXPECT_EQ(content("settings.ini"), "[General]\nRunAtload=false\n");
  EXPECT_EQ(content("keldra.desktop"), "[Desktop Entry]\nExec=/bin/true\nHidden=true\n");
  EXPECT_EQ(content("units"), "of another boot");
  QFile::remove(path("keldra.desktop"));
  disk.fill();
  writeAll(true);
  QFile::remove(path("fill"));
  EXPECT_EQ(names(), QStringList({"settings.ini", "units"}))
      << "no empty entry, and nothing beside";
  EXPECT_NE(log.find("settings.ini is not written: No space left"), std::string::npos) << log;
}

TEST_F(OwnFilesTest, AreNeverPutInThePlaceOfAnythingElse) {
  const std::pair<const char *, std::function<bool(const QString &)>> kinds[] = {
      {"a pipe", [](const QString &name) { return mkfifo(name.toLocal8Bit(), 0600) == 0; }},
      {"a folder", [](const QString &name) { return QDir().mkdir(name); }},
      // Never to a device of the machine's: where the rule is broken, root would replace it.
      {"a link to a pipe",
       [](const QString &name) {
         return mkfifo((name + ".pipe").toLocal8Bit(), 0600) == 0 &&
                QFile::link(name + ".pipe", name);
       }},
      {"a link to nothing", [](const QString &name) { return QFile::link("nothing", name); }},
      {"a file without end", [](const QString &name) {
         writeFile(name, "");
         return truncate(name.toLocal8Bit(), 3'000'000'000) == 0;
       }}};
  for (const QString name : {"settings.ini", "settings.ini.new", "units", "units.new"}) {
    for (const auto &[what, make] : kinds) {
      QDir().mkpath(path({}));
      ASSERT_TRUE(make(path(name)));
      struct stat before {
      }, after{};
      lstat(path(name).toLocal8Bit(), &before);
      const std::string log = writeAll(false);
      lstat(path(name).toLocal8Bit(), &after);
      // A leftover of ours is cleaned, and a file of numbers that makes no sense is made anew.
      const bool isOurs = S_ISREG(before.st_mode) && name != "settings.ini";
      EXPECT_EQ(before.st_ino == after.st_ino, !isOurs) << what << " as " << name.toStdString();
      EXPECT_EQ(log.find(" is not ") == std::string::npos, isOurs) << log;
      QDir(path({})).removeRecursively();
    }
  }
}

TEST_F(OwnFilesTest, AreWrittenWhereALinkLeadsAndOnlyWhenTheyChange) {
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
  struct stat before {
  }, after{};
  stat(real.toLocal8Bit(), &before);
  EXPECT_EQ(writeAll(false), "");
  stat(real.toLocal8Bit(), &after);
  EXPECT_EQ(before.st_ino, after.st_ino);
  EXPECT_EQ(SettingsDefaults(real).object("RunAtload"), "false");
}

TEST_F(OwnFilesTest, AreNotWaitedForLongWhileAnotherProgramWritesThem) {
  writeFile(path("units.new"), "");
  const int other = open(path("units.new").toLocal8Bit(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  EXPECT_NE(writeAll(true).find("units is not written"), std::string::npos);
  EXPECT_EQ(names(), QStringList({"keldra.desktop", "settings.ini", "units.new"}));
  close(other);
}
