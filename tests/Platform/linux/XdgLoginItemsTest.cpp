#include "Platform/linux/XdgLoginItems.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/Files.h"

namespace {

class XdgLoginItemsTest : public testing::Test {
 public:
  QString makeProgram(const QString &name) {
    const QString path = writeFile(root.filePath(name), {});
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
  }
  void writeEntry(const QString &name, const QString &lines) const {
    writeFile(folder + '/' + name, "[Desktop Entry]\nType=Application\n" + lines.toUtf8());
  }
  QByteArray entry(const QString &name) const { return contentOf(folder + '/' + name); }

  /// The program that each entry starts, by entry name.
  static QMap<QString, std::optional<QString>> all(const XdgLoginItems &items) {
    QMap<QString, std::optional<QString>> all;
    const auto snapshot = *items.snapshot();
    for (const auto &item : snapshot) all[item.identifier] = item.location;
    return all;
  }

  QTemporaryDir root;
  QString folder = root.filePath("configuration/autostart");
  QString program = makeProgram("program");
  XdgLoginItems items{folder, program};
};

const QString kOwn = "keldra.desktop";

}  // namespace

TEST_F(XdgLoginItemsTest, AreReadBackForAnyProgramName) {
  for (const char *name :
       {"a blank ", "a\"quote`id`'s", "$HOME", "100%f", "\\\\ \\n \\s", "ünï\t", "a;b=c#d"}) {
    XdgLoginItems odd(folder, makeProgram(name));
    odd.insertOwnItem();
    EXPECT_EQ(all(odd)[kOwn], odd.ownLocation()) << name;
    odd.remove(odd.snapshot()->first());
  }
  XdgLoginItems(folder, makeProgram("two\nExec=lines")).insertOwnItem();
  EXPECT_TRUE(items.snapshot()->isEmpty());

  XdgLoginItems(folder, makeProgram("a $b%c\\d")).insertOwnItem();
  const QByteArray path = root.path().toUtf8() + "/a ";
  EXPECT_TRUE(entry(kOwn).contains("\nExec=\"" + path + R"(\\$b%%c\\\\d")" + "\n"));
  EXPECT_TRUE(entry(kOwn).contains("\nTryExec=" + path + R"($b%c\\d)" + "\n"));
}

TEST_F(XdgLoginItemsTest, OfOtherProgramsAreNotChanged) {
  const QString other = makeProgram("other");
  writeEntry(kOwn, "Exec=" + other + "\n");
  writeEntry("keldra-1.desktop", "Exec=" + root.filePath("moved") + "\n");
  writeEntry("second.txt", "Exec=\"" + program + "\" --twice\n");
  QFile::link("second.txt", folder + "/second.desktop");
  writeEntry("third.txt", "Exec=" + program + "\n");
  writeEntry("unfinished.desktop", "Exec=\"" + program.chopped(1) + "\\");
  QDir(folder).mkdir("folder.desktop");
  const QByteArray before = entry(kOwn);
  items.insertOwnItem();
  EXPECT_EQ(entry(kOwn), before);
  const QMap<QString, std::optional<QString>> expected = {{kOwn, other},
                                                          {"keldra-1.desktop", std::nullopt},
                                                          {"keldra-2.desktop", program},
                                                          {"second.desktop", program},
                                                          {"unfinished.desktop", std::nullopt}};
  EXPECT_EQ(all(items), expected);
}

TEST_F(XdgLoginItemsTest, AreNotAddedWhileAnUnknownEntryMayBeAnOwnItem) {
  writeEntry("late.desktop", "Exec=/another/way/to/it\n");
  XdgLoginItems(folder, program, [](const QString &) { return LookAtPath(); }).insertOwnItem();
  EXPECT_EQ(all(items).size(), 1);
}

TEST_F(XdgLoginItemsTest, ThatAreSwitchedOffAreKeptAndSwitchedOnAgainInPlace) {
  for (const QByteArray key : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
    const QByteArray rest = "Exec=" + program.toUtf8() + "\nName[de]=\xff mine\n";
    writeFile(folder + "/mine.desktop", "[Desktop Entry]\n" + key + rest);
    writeFile(folder + "/mine.desktop.new", "of a program that was killed");
    XdgLoginItems anew(folder, program);
    EXPECT_EQ(all(anew)["mine.desktop"], program);
    EXPECT_FALSE(QFile::exists(folder + "/mine.desktop.new"));
    anew.remove(anew.snapshot()->first());
    EXPECT_EQ(entry("mine.desktop"), "[Desktop Entry]\n" + key + rest);
    EXPECT_EQ(all(anew)["mine.desktop"], std::nullopt) << "the item still counts as own";
    anew.insertOwnItem();
    EXPECT_EQ(entry("mine.desktop"), "[Desktop Entry]\n" + rest);
    EXPECT_EQ(all(anew).size(), 1);
  }
}
