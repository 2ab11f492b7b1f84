#include "Platform/linux/XdgLoginItems.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/Files.h"

namespace {

class XdgLoginItemsTest : public testing::Test {
 public:
  QString makeProgram(const QString &name) {
    const QString path = root.filePath(name);
    writeFile(path, {});
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
  }
  void writeEntry(const QString &name, const QString &lines) const {
    writeFile(folder + '/' + name, "[Desktop Entry]\nType=Application\n" + lines.toUtf8());
  }
  QByteArray entry(const QString &name) const { return contentOf(folder + '/' + name); }
  QStringList entries() const { return QDir(folder).entryList(QDir::Files, QDir::Name); }

  static std::optional<QString> location(const XdgLoginItems &items, const QString &name) {
    const auto all = items.snapshot().value_or(QVector<LoginItems::Item>());
    for (const auto &item : all) {
      if (item.identifier == name) return item.location;
    }
    ADD_FAILURE() << "no item " << name.toStdString();
    return std::nullopt;
  }

  QTemporaryDir root;
  QString folder = root.filePath("configuration/autostart");
  QString program = makeProgram("program");
  XdgLoginItems items{folder, program};
};

const QString kOwn = "keldra.desktop";

}  // namespace

TEST_F(XdgLoginItemsTest, ComeBackAsTheyWereWrittenWhateverTheProgramIsCalled) {
  for (const char *name : {"plain", "a blank ", "a\"quote`id`'s", "$HOME", "100%f", "\\\\ \\n \\s",
                           "ünï", "tab\tbed", "a;b=c#d"}) {
    XdgLoginItems odd(folder, makeProgram(name));
    odd.insertOwnItem();
    EXPECT_EQ(location(odd, kOwn), odd.ownLocation()) << name;
    const auto all = *odd.snapshot();
    ASSERT_EQ(all.size(), 1);
    odd.remove(all.first());
    EXPECT_EQ(entries(), QStringList{});
  }
}

TEST_F(XdgLoginItemsTest, AreQuotedAsTheDesktopsReadThem) {
  XdgLoginItems(folder, makeProgram("a $b%c\\d")).insertOwnItem();
  const QByteArray path = root.path().toUtf8() + "/a ";
  EXPECT_TRUE(entry(kOwn).contains("\nExec=\"" + path + R"(\\$b%%c\\\\d")" + "\n"));
  EXPECT_TRUE(entry(kOwn).contains("\nTryExec=" + path + R"($b%c\\d)" + "\n"));
}

TEST_F(XdgLoginItemsTest, AreNotWrittenForAProgramThatFitsInNoLine) {
  for (const char *name : {"two\nExec=lines", "two\rlines"}) {
    XdgLoginItems(folder, makeProgram(name)).insertOwnItem();
  }
  XdgLoginItems(folder, "/nowhere/program").insertOwnItem();
  EXPECT_EQ(entries(), QStringList{});
}

TEST_F(XdgLoginItemsTest, OfOthersAreLeftAlone) {
  const QString other = makeProgram("other");
  writeEntry(kOwn, "Exec=" + other + "\n");
  writeEntry("keldra-1.desktop", "Exec=" + root.filePath("moved") + "\n");
  writeEntry("second.desktop", "Exec=\"" + program + "\" --twice\n");
  writeEntry("third.txt", "Exec=" + program + "\n");
  const QByteArray before = entry(kOwn);
  items.insertOwnItem();
  EXPECT_EQ(entry(kOwn), before);
  EXPECT_EQ(location(items, kOwn), other);
  EXPECT_EQ(location(items, "keldra-1.desktop"), std::nullopt) << "its program is not there";
  EXPECT_EQ(location(items, "keldra-2.desktop"), items.ownLocation());
  EXPECT_EQ(location(items, "second.desktop"), items.ownLocation()) << "a duplicate";
  EXPECT_EQ(items.snapshot()->size(), 4);
}

TEST_F(XdgLoginItemsTest, ThatAreSwitchedOffAreNoneUntilTheyAreWrittenAnew) {
  for (const char *line : {"Hidden=true", "X-GNOME-Autostart-enabled=false"}) {
    writeEntry(kOwn, QStringLiteral("Exec=%1\n%2\n").arg(program, line));
    EXPECT_EQ(location(items, kOwn), std::nullopt);
    items.insertOwnItem();
    EXPECT_EQ(location(items, kOwn), items.ownLocation());
    EXPECT_EQ(entries(), QStringList{kOwn});
  }
}

TEST_F(XdgLoginItemsTest, ThatAreBrokenHaveNoLocation) {
  writeEntry("empty.desktop", "");
  writeEntry("no-program.desktop", "Exec=\n");
  writeEntry("unfinished.desktop", "Exec=\"" + program.chopped(1) + "\\");
  writeEntry("unknown.desktop", "Exec=no-such-program-anywhere %u\n");
  writeEntry("other-group.desktop", "[Desktop Action new]\nExec=" + program + "\n");
  writeEntry("bytes.desktop", QString(100'000, QChar(0xfffd)));
  QDir(folder).mkdir("folder.desktop");
  const auto all = *items.snapshot();
  EXPECT_EQ(all.size(), 6);
  for (const auto &item : all) {
    EXPECT_EQ(item.location, std::nullopt) << item.identifier.toStdString();
  }
}
