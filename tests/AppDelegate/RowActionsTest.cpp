#include <gtest/gtest.h>

#include <QFile>
#include <QTimer>

#include "support/AsAnybody.h"
#include "support/OpenedFolders.h"
#include "support/TestMachine.h"

namespace {

using TextColor = TextField::TextColor;

/// One ESP whose answers take their time, so that things can happen meanwhile.
QByteArray slowMachine(const QByteArray &refusal = {}) {
  return R"({ "disks": [ { "unit": 0, "media": "Disk", "partitions": [ { "slice": 1, "delay": 20,
    "media": "EFI System Partition", "volume": { "kind": "msdos", "name": "EFI" }, "refuse": {)" +
         refusal + "} } ] } ] }";
}

void later(std::function<void()> action) {
  QTimer::singleShot(5, qApp, std::move(action));
}

}  // namespace

TEST(RowActions, AClickMountsAndAnotherUnmounts) {
  TestMachine machine(twoEspMachine());
  machine.click(machine.mountButton(0));
  const QString folder = machine.folder("EFI");
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
  EXPECT_TRUE(machine.cell(0)->openButton()->isVisible());
  EXPECT_EQ(machine.status(), "disk0s1 mouted at " + folder);
  EXPECT_EQ(machine.statusColor(), TextColor::Blue);

  machine.click(machine.mountButton(0));
  EXPECT_EQ(machine.mountButton(0)->title(), "mount disk0s1");
  EXPECT_EQ(machine.status(), folder + " umounted!");
}

TEST(RowActions, ARefusalIsRedAndLeavesTheRowsAndTakesItsFiveSeconds) {
  TestMachine machine(twoEspMachine());
  machine.platform.setRefusals("disk0s1", kDAReturnNotPrivileged, std::nullopt);
  const auto before = machine.clock->elapsed();
  machine.click(machine.mountButton(0));
  EXPECT_EQ(machine.status(), "mount failed for disk0s1, status not privileged");
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
  EXPECT_EQ(machine.mountButton(0)->title(), "mount disk0s1");
  EXPECT_GE(machine.clock->elapsed() - before, std::chrono::seconds(5));
}

TEST(RowActions, ForceIsTakenFromItsBoxAtTheClickAndMixedForcesToo) {
  TestMachine machine(twoEspMachine());
  machine.tickShowAll();
  machine.platform.setRefusals("disk1s2", std::nullopt, kDAReturnBusy);
  machine.click(machine.mountButton(4));
  EXPECT_EQ(machine.status(), "umount failed for disk1s2, reason: busy");
  EXPECT_EQ(machine.mountButton(4)->title(), "umount disk1s2");

  machine.interface.forceUmountCheck()->setTristate(true);
  machine.interface.forceUmountCheck()->setState(CheckBox::kMixed);
  machine.click(machine.mountButton(4));
  EXPECT_EQ(machine.status(), machine.folder("Data") + " umounted!");
  EXPECT_EQ(machine.mountButton(4)->title(), "mount disk1s2");
}

TEST(RowActions, WhileTheServiceWorksTheRowIsBusyAndInputIsLost) {
  TestMachine machine(slowMachine());
  bool wasBusy = false;
  later([&] {
    wasBusy = machine.mountButton(0)->isBusy();
    machine.tickShowAll();
    QTest::mouseClick(machine.mountButton(0), Qt::LeftButton);
    machine.mountButton(0)->click();  // as a screen reader does
    EXPECT_TRUE(machine.interface.popover()->isShown());
  });
  machine.click(machine.mountButton(0));
  EXPECT_TRUE(wasBusy);
  EXPECT_FALSE(machine.mountButton(0)->isBusy());
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
  machine.settle();
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
  EXPECT_EQ(machine.interface.showAllDisksCheck()->state(), CheckBox::kOff);
}

TEST(RowActions, MessagesWaitUntilTheActionIsOverAndItsRefusalStaysRed) {
  TestMachine machine(slowMachine(R"("unmount": 49165)"));
  machine.click(machine.mountButton(0));
  later([&] {
    machine.platform.rename("disk0s1", "Other");
    machine.delegate.showPopover();  // queues the clearing of the status line
  });
  machine.click(machine.mountButton(0));
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
  EXPECT_EQ(machine.status(), "umount failed for disk0s1, reason: Permission denied");
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
}

TEST(RowActions, TitlesAreReadBackWordByWord) {
  TestMachine machine(twoEspMachine());
  RowButton button;
  button.setTitle("whatever disk1s2 more");
  machine.delegate.mountOrUmount(&button);
  EXPECT_EQ(machine.status(), machine.folder("Data") + " umounted!");
  machine.delegate.mountOrUmount(nullptr);
  machine.delegate.openEsp(nullptr);
}

TEST(RowActions, OpensAbsolutePathsOnlyAndCutsThemAtTheWordOpen) {
  TestMachine machine(twoEspMachine());
  OpenedFolders opened;
  machine.tickShowAll();
  machine.click(machine.cell(4)->openButton());
  RowButton button;
  for (const char *title :
       {"open (null)", "open N/A", "open relative", "open ", "open /usr/open data"}) {
    button.setTitle(QString::fromUtf8(title));
    machine.delegate.openEsp(&button);
  }
  EXPECT_EQ(opened.paths, QStringList({machine.folder("Data"), "/usr/"}));
}

TEST(RowActions, AFolderThatMayNotBeReadOrIsGoneIsSaidAndNotOpened) {
  TestMachine machine(twoEspMachine());
  OpenedFolders opened;
  RowButton button;
  const QString folder = machine.folder("Data");
  button.setTitle("open " + folder);
  QFile::setPermissions(folder, {});
  {
    const AsAnybody anybody;
    machine.delegate.openEsp(&button);
  }
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_EQ(machine.status(), "you may not read " + folder);
  button.setTitle("open " + folder + "/gone");
  machine.delegate.openEsp(&button);
  EXPECT_EQ(machine.status(), folder + "/gone is not there");
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
  EXPECT_EQ(opened.paths, QStringList());
}

TEST(RowActions, BusyNamesWhoUsesTheVolume) {
  TestMachine machine(R"json({ "disks": [ { "unit": 0, "partitions": [ { "slice": 1,
    "media": "EFI System Partition", "refuse": { "unmount": "busy" },
    "volume": { "kind": "msdos", "mountPoint": "EFI", "usedBy": ["a (1)", "b<i> (2)", "%1%2 (3)",
      "d (4)", "e (5)", "f (6)", "g (7)", "h (8)"] } } ] } ] })json");
  machine.click(machine.mountButton(0));
  const QString refusal = "umount failed for disk0s1, reason: busy";
  EXPECT_EQ(machine.status(), refusal);
  QWidget *statusLine = machine.interface.statusTextField();
  EXPECT_TRUE(toolTipOf(statusLine).contains("In use by a (1), b&lt;i&gt; (2), %1%2 (3)"));
  EXPECT_TRUE(toolTipOf(statusLine).contains("f (6) and 2 more"));

  RowButton *button = machine.mountButton(0);
  machine.interface.popover()->close();
  button->click();
  machine.settle();
  ASSERT_EQ(machine.desktop.notifications.size(), 1);
  EXPECT_TRUE(machine.desktop.notifications[0].startsWith(refusal + '\n'));
  EXPECT_TRUE(machine.desktop.notifications[0].contains("In use by a (1)"));
  machine.platform.rename("disk0s1", "Other");
  machine.status();
  EXPECT_FALSE(toolTipOf(statusLine).contains("In use")) << "it belongs to the refusal";
}
