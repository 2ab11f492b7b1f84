#include <gtest/gtest.h>

#include <QFile>
#include <QMenu>
#include <QTimer>

#include "support/AsAnybody.h"
#include "support/OpenedFolders.h"
#include "support/TestMachine.h"

namespace {

using TextColor = TextField::TextColor;

class RowActions : public testing::Test {
 protected:
  /// Clicks the first row's button, and does `work` while the service delays its answer.
  void clickAndMeanwhile(const std::function<void()> &work) {
    machine.platform.setDelay("disk0s1", std::chrono::milliseconds(20));
    QTimer::singleShot(5, qApp, work);
    machine.click(machine.mountButton(0));
  }
  void open(const QString &path) {
    button.setTitle("open " + path);
    machine.delegate.openEsp(&button);
  }

  TestMachine machine{twoEspMachine()};
  OpenedFolders opened;
  RowButton button;
};

}  // namespace

TEST_F(RowActions, ARefusalIsRedAndTakesFiveSeconds) {
  machine.platform.setRefusals("disk0s1", kDAReturnNotPrivileged, std::nullopt);
  const auto before = machine.clock->elapsed();
  machine.click(machine.mountButton(0));
  EXPECT_EQ(machine.status(), "mount failed for disk0s1, status not privileged");
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
  EXPECT_GE(machine.clock->elapsed() - before, std::chrono::seconds(5));
}

TEST_F(RowActions, AMixedForceBoxForcesTheUnmount) {
  machine.tickShowAll();
  machine.platform.setRefusals("disk1s2", std::nullopt, kDAReturnBusy);
  machine.interface.forceUmountCheck()->setTristate(true);
  machine.interface.forceUmountCheck()->setState(CheckBox::kMixed);
  machine.click(machine.mountButton(4));
  EXPECT_EQ(machine.status(), machine.folder("Data") + " umounted!");
}

TEST_F(RowActions, WhileTheServiceWorksTheRowIsBusyAndInputIsDiscarded) {
  const auto isOffered = [&] { return machine.interface.menu()->actions()[3]->isEnabled(); };
  bool wasBusy = false;
  bool wasOffered = true;
  clickAndMeanwhile([&] {
    wasBusy = machine.mountButton(0)->isBusy();
    wasOffered = isOffered();
    machine.tickShowAll();
    QTest::mouseClick(machine.mountButton(0), Qt::LeftButton);
    machine.mountButton(0)->click();  // as a screen reader does
    machine.desktop.actElsewhere();
    while (machine.clock->now() < std::chrono::minutes(1)) continue;  // not a double click
    machine.desktop.clickItem();
  });
  EXPECT_TRUE(wasBusy);
  EXPECT_FALSE(wasOffered);
  machine.settle();
  EXPECT_FALSE(machine.mountButton(0)->isBusy());
  EXPECT_TRUE(isOffered());
  EXPECT_TRUE(machine.interface.popover()->isShown());
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
  EXPECT_EQ(machine.interface.showAllDisksCheck()->state(), CheckBox::kOff);
}

TEST_F(RowActions, MessagesWaitUntilTheActionIsOverAndItsRefusalStaysRed) {
  machine.click(machine.mountButton(0));
  machine.platform.setRefusals("disk0s1", std::nullopt, unixErrorStatus(EACCES));
  clickAndMeanwhile([&] {
    machine.platform.rename("disk0s1", "Other");
    machine.delegate.showPopover();  // queues the clearing of the status line
  });
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
  EXPECT_EQ(machine.status(), "umount failed for disk0s1, reason: Permission denied");
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
}

TEST_F(RowActions, TitlesAreSplitIntoWordsAndPathsEndAtTheWordOpen) {
  button.setTitle("whatever disk1s2 more");
  machine.delegate.mountOrUmount(&button);
  EXPECT_EQ(machine.status(), machine.folder("Data") + " umounted!");
  machine.delegate.mountOrUmount(nullptr);
  machine.delegate.openEsp(nullptr);
  for (const char *path : {"(null)", "N/A", "relative", "", "/usr/open data"}) open(path);
  EXPECT_EQ(opened.paths, QStringList("/usr/"));
}

TEST_F(RowActions, AnUnreadableOrMissingFolderIsReportedAndNotOpened) {
  const QString folder = machine.folder("Data");
  QFile::setPermissions(folder, {});
  {
    const AsAnybody anybody;
    open(folder);
  }
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_EQ(machine.status(), "you may not read " + folder);
  open(folder + "/gone");
  EXPECT_EQ(machine.status(), folder + "/gone is not there");
  EXPECT_EQ(machine.statusColor(), TextColor::Red);
  EXPECT_EQ(opened.paths, QStringList());
}

TEST(RefusedRowAction, NamesTheProcessesThatUseABusyVolume) {
  TestMachine machine(R"json({ "disks": [ { "unit": 0, "partitions": [ { "slice": 1,
    "media": "EFI System Partition", "refuse": { "unmount": "busy" },
    "volume": { "kind": "msdos", "mountPoint": "EFI", "usedBy": ["a (1)", "b<i> (2)", "%1%2 (3)",
      "d (4)", "e (5)", "f (6)", "g (7)", "h (8)"] } } ] } ] })json");
  RowButton *button = machine.mountButton(0);
  machine.click(button);
  const QString refusal = "umount failed for disk0s1, reason: busy";
  EXPECT_EQ(machine.status(), refusal);
  QWidget *statusLine = machine.interface.statusTextField();
  EXPECT_TRUE(toolTipOf(statusLine).contains("In use by a (1), b&lt;i&gt; (2), %1%2 (3)"));
  EXPECT_TRUE(toolTipOf(statusLine).contains("f (6) and 2 more"));

  machine.interface.popover()->close();
  button->click();
  machine.settle();
  ASSERT_EQ(machine.desktop.notifications.size(), 1) << "no notification while the popover is open";
  EXPECT_TRUE(machine.desktop.notifications[0].startsWith(refusal + "\nIn use by a (1)"));
  machine.platform.rename("disk0s1", "Other");
  machine.status();
  EXPECT_FALSE(toolTipOf(statusLine).contains("In use")) << "an outdated detail";
}
