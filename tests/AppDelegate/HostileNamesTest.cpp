// Names on disks are not trusted.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include "Foundation/SystemLog.h"
#include "Foundation/Text.h"
#include "Interface/PlainText.h"
#include "support/OpenedFolders.h"
#include "support/TestMachine.h"

namespace {

const QStringList kHostileNames = {
    "ESP on disk0s1\nparent of disk0,\nReal disk: EFI System Partition",
    "a\u2028b\u2029c\vd\fe\rf\u0085g",
    QString(QChar(0)) + "\u001b[31m\u009c\t\u0007",
    "\u202Eeman \u2066\u200F\u061C\u2069\u202C",
    "<b>bold</b><img src='/etc/passwd'><br>&lt;&amp;&nbsp;",
    "&File && &Quit & %1 %2 %n %s %@ %%",
    "open /etc",
    "mount disk0s1",
    "(null)",
    "../../etc",
    QString(QChar(0xD800)) + "\uFDD0\uFFFC\uFFFE" + QString(QChar(0xDC00)),
    QString(10240, 'x'),
};

/// A disk0 with an ordinary ESP, and a disk1 with one partition; disk and partition have this name.
QByteArray machineWith(const QString &name, const QString &mountPoint = {}) {
  const auto quoted = [](const QString &text) {
    return QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
  };
  return QByteArray(R"({ "disks": [ { "unit": 0, "media": "Real disk", "partitions": [
    { "slice": 1, "media": "EFI System Partition", "volume": { "kind": "msdos", "name": "EFI" } } ] },
    { "unit": 1, "media": NAME, "partitions": [ { "slice": 1, "media": NAME, "device": "/dev/sdb1",
      "volume": { "kind": "ext4", "name": NAME MOUNT } } ] } ] })")
      .replace("MOUNT", mountPoint.isEmpty() ? "" : ", \"mountPoint\": " + quoted(mountPoint))
      .replace("NAME", quoted(name));
}

/// The painted text of the row.
QImage painted(const QByteArray &json) {
  TestMachine machine(json);
  machine.tickShowAll();
  return machine.cell(1)->textField()->grab().toImage();
}

}  // namespace

TEST(HostileNames, StayInTheirRowAndNoButtonActsOnAnotherPartition) {
  for (const QString &name : kHostileNames) {
    SCOPED_TRACE(name.left(70).toStdString());
    // A name that no folder can have makes the service choose another.
    const bool isFolderName =
        name.size() < 80 && !name.contains('/') && !name.contains(QChar(0)) && name.isValidUtf16();
    TestMachine machine(machineWith(name, isFolderName ? name : "chosen"));
    OpenedFolders opened;
    machine.tickShowAll();
    const QString folder = machine.folder(isFolderName ? name : "chosen");
    EXPECT_EQ(machine.text(1).section(" on disk1s1\n", 0, 0), folder.section('/', -1));
    machine.click(machine.mountButton(0));
    EXPECT_EQ(machine.cell(1)->openButton()->title(), "open " + folder);
    machine.click(machine.cell(1)->openButton());
    EXPECT_EQ(opened.paths, QStringList{folder.section("open ", 0, 0)});

    machine.click(machine.mountButton(1));
    EXPECT_EQ(machine.status(), folder + " umounted!");
    EXPECT_EQ(machine.mountButton(1)->title(), "mount disk1s1");
    EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
    const QString shown = name == QStringLiteral("(null)") ? "N/A" : name;
    EXPECT_EQ(machine.text(1), shown + " on disk1s1\nparent of disk1,\n" + shown + ": " + shown);

    QString spoken =
        QAccessible::queryAccessibleInterface(machine.cell(1))->text(QAccessible::Name);
    EXPECT_EQ(spoken.count('\n'), 2);
    const auto characters = spoken.remove('\n').toUcs4();
    EXPECT_TRUE(std::all_of(characters.begin(), characters.end(), isHarmless));
  }
}

TEST(HostileNames, ArePaintedWithinTheirLineAndDoNotHideTheBsdName) {
  for (const char *kind : {"\n", "\u202E", "\u2028", "\t"}) {
    const QString name = QStringLiteral("ESP on disk0s1%1parent of disk0,");
    EXPECT_EQ(painted(machineWith(name.arg(kind))), painted(machineWith(name.arg("\uFFFD"))))
        << kind;
  }
  const auto middle = [](const QString &name) {
    const QImage whole = painted(machineWith(name));
    return whole.copy(0, whole.height() / 2 - 5, whole.width(), 10);
  };
  EXPECT_EQ(middle("Z" + QString(60, QChar(0x0301))), middle("Z"));
  const QByteArray one = machineWith("ESP on disk0s1" + QString(400, ' '));
  EXPECT_NE(painted(one), painted(QByteArray(one).replace("slice\": 1, \"media\": \"ESP on",
                                                          "slice\": 7, \"media\": \"ESP on")));
}

TEST(HostileNames, AreNotRichTextInTooltips) {
  const QString name = "<b>&amp;\n" + QString(400, 'x') + "\u202E";
  TestMachine machine(machineWith(name, "/mnt/" + name.left(200)));
  machine.tickShowAll();
  for (QWidget *widget : QWidgetList{machine.cell(1), machine.cell(1)->openButton()}) {
    const QString shown = toolTipOf(widget);
    EXPECT_TRUE(shown.contains("&lt;b&gt;&amp;amp;\uFFFDxxx")) << shown.toStdString();
    EXPECT_FALSE(shown.contains(QChar(0x202E))) << shown.toStdString();
  }
  EXPECT_EQ(toolTipOf(machine.cell(1)).count("<br>"), 3);
  EXPECT_TRUE(toolTipOf(machine.cell(1)).endsWith("<br>/dev/sdb1</p>"));
  for (const QWidget *window : QApplication::topLevelWidgets()) {
    EXPECT_LT(window->width(), 2000) << window->metaObject()->className();
  }
}

TEST(HostileNames, PassNoMarkupToTheDesktop) {
  EXPECT_EQ(withoutMarkup("<a href='x'>y</a> &amp;\n\u202E"),
            "‹a href='x'›y‹/a› ＆amp;\uFFFD\uFFFD");
  EXPECT_LE(withoutMarkup(QString(100000, 'x')).size(), 2000);
}

TEST(HostileNames, ForgeNoLineInTheLog) {
  static QString logged;
  const auto former = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext &, const QString &line) { logged = line; });
  systemLog("a\nb\u2028c\U000E0041d\u202E%s %1");
  qInstallMessageHandler(former);
  EXPECT_EQ(logged, "a\\u000ab\\u2028c\\ue0041d\\u202e%s %1");
}

TEST(HostileNames, OfAnyLengthArePaintedQuickly) {
  TestMachine machine(machineWith(QString(1000000, 'x'), "/mnt/" + QString(1000000, 'y')));
  machine.tickShowAll();
  QElapsedTimer timer;
  timer.start();
  for (int time = 0; time < 20; ++time) machine.interface.popover()->grab();
  toolTipOf(machine.cell(1));
  EXPECT_LT(timer.elapsed(), 2000) << "a megabyte that is shaped takes many times as long";
}
