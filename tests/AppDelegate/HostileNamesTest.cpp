// Names come from disks that strangers have written.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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

/// A disk0 with an ordinary ESP, and a disk1 whose own and only partition's names are this one.
QByteArray machineWith(const QString &name, const QString &mountPoint = {}) {
  const auto disk = [](int unit, const QString &media, const QJsonObject &partition) {
    return QJsonObject{{"unit", unit}, {"media", media}, {"partitions", QJsonArray{partition}}};
  };
  QJsonObject volume{{"kind", "ext4"}, {"name", name}};
  if (!mountPoint.isEmpty()) volume["mountPoint"] = mountPoint;
  const QJsonObject hostile{
      {"slice", 1}, {"media", name}, {"device", "/dev/sdb1"}, {"volume", volume}};
  const QJsonObject esp{{"slice", 1},
                        {"media", "EFI System Partition"},
                        {"volume", QJsonObject{{"kind", "msdos"}, {"name", "EFI"}}}};
  const QJsonArray disks{disk(0, "Real disk", esp), disk(1, name, hostile)};
  return QJsonDocument(QJsonObject{{"disks", disks}}).toJson();
}

/// What is drawn in one of three lines of a row's text.
QImage paintedLine(const QString &name, int line) {
  TestMachine machine(machineWith(name));
  machine.tickShowAll();
  const QImage whole = machine.cell(1)->textField()->grab().toImage();
  const RowTextField *field = machine.cell(1)->textField();
  const int top = (whole.height() - field->sizeHint().height()) / 2;
  const int height = field->sizeHint().height() / 3;
  return line == 0 ? whole.copy(0, 0, whole.width(), top + height)
                   : whole.copy(0, top + line * height + 3, whole.width(), height - 3);
}

}  // namespace

TEST(HostileNames, KeepToTheirRowAndMakeNoButtonActOnAnother) {
  for (const QString &name : kHostileNames) {
    SCOPED_TRACE(name.left(70).toStdString());
    // Where no folder can have such a name, the service chooses another.
    const bool isFolderName =
        name.size() < 80 && !name.contains('/') && !name.contains(QChar(0)) && name.isValidUtf16();
    TestMachine machine(machineWith(name, isFolderName ? name : "chosen"));
    OpenedFolders opened;
    EXPECT_EQ(machine.listed(), QStringList{"disk0s1"});
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

    const QString spoken =
        QAccessible::queryAccessibleInterface(machine.cell(1))->text(QAccessible::Name);
    EXPECT_EQ(spoken.section('\n', 1, 1), "parent of disk1,");
    EXPECT_EQ(spoken.count('\n'), 2);
    const auto characters = QString(spoken).remove('\n').toUcs4();
    EXPECT_TRUE(std::all_of(characters.begin(), characters.end(), isHarmless));
  }
}

TEST(HostileNames, ArePaintedWithinTheirLine) {
  for (const char *kind : {"\n", "\u202E", "\u2028", "\t"}) {
    const QString name = QStringLiteral("ESP on disk0s1%1parent of disk0,");
    EXPECT_EQ(paintedLine(name.arg(kind), 0), paintedLine(name.arg("\uFFFD"), 0)) << kind;
  }
  const QString tower = "Z" + QString(60, QChar(0x0301));
  EXPECT_NE(paintedLine(tower, 0), paintedLine("Z", 0));
  EXPECT_EQ(paintedLine(tower, 1), paintedLine("Z", 1));
  EXPECT_NE(paintedLine("&Quit", 0), paintedLine("Quit", 0));
}

TEST(HostileNames, CannotPushThePartitionsOwnNameOutOfSight) {
  const QString name = "ESP on disk0s1" + QString(400, ' ');
  const QByteArray first = machineWith(name);
  const QByteArray second = QByteArray(first).replace("\"slice\": 1", "\"slice\": 7");
  TestMachine one(first);
  one.tickShowAll();
  const QImage ofOne = one.cell(1)->textField()->grab().toImage();
  TestMachine seven(second);
  seven.tickShowAll();
  EXPECT_NE(ofOne, seven.cell(1)->textField()->grab().toImage());
}

TEST(HostileNames, AreNoRichTextInTooltips) {
  const QString name = "<b>x</b>&amp;\n" + QString(400, 'x') + "\u202E";
  TestMachine machine(machineWith(name, "/mnt/<i>&amp;\n" + QString(200, 'y')));
  machine.tickShowAll();
  for (QWidget *widget : {static_cast<QWidget *>(machine.cell(1)),
                          static_cast<QWidget *>(machine.cell(1)->openButton())}) {
    const QString shown = toolTipOf(widget);
    EXPECT_FALSE(shown.contains("<b>") || shown.contains("<i>")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("&amp;amp;\uFFFD")) << shown.toStdString();
    EXPECT_FALSE(shown.contains('\n') || shown.contains(QChar(0x202E))) << shown.toStdString();
  }
  EXPECT_EQ(toolTipOf(machine.cell(1)).count("<br>"), 3);
  EXPECT_TRUE(toolTipOf(machine.cell(1)).endsWith("<br>/dev/sdb1</p>"));
  for (const QWidget *window : QApplication::topLevelWidgets()) {
    EXPECT_LT(window->width(), 2000) << window->metaObject()->className();
  }
}

TEST(HostileNames, CarryNoMarkupToTheDesktop) {
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

TEST(HostileNames, OfAnyLengthArePaintedAtOnce) {
  constexpr int kMilliseconds = 2000;  // a megabyte that is shaped takes many times as long
  QElapsedTimer timer;
  TestMachine machine(machineWith(QString(1000000, 'x'), "/mnt/" + QString(1000000, 'y')));
  machine.tickShowAll();
  timer.start();
  for (int time = 0; time < 20; ++time) machine.interface.popover()->grab();
  toolTipOf(machine.cell(1));
  EXPECT_LT(timer.elapsed(), kMilliseconds);
}
