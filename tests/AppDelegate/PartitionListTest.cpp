#include <gtest/gtest.h>

#include <QFile>
#include <stdexcept>

#include "Interface/EmptyView.h"
#include "Interface/Notice.h"
#include "support/Files.h"
#include "support/TestMachine.h"

TEST(PartitionList, SaysWhyItIsIncompleteUntilARefreshSucceeds) {
  TestMachine machine(twoEspMachine());
  const Notice *notice = machine.interface.listNotice();
  machine.platform.mountFromOutside("disk1s1");
  machine.settle();
  EXPECT_FALSE(notice->isVisible());

  const QString icon = machine.folder("EFI") + "/.VolumeIcon.icns";
  writeFile(icon, "no picture");
  machine.platform.mountFromOutside("disk0s1");
  machine.settle();
  EXPECT_TRUE(notice->isVisible());
  EXPECT_TRUE(notice->text().contains("disk1s1")) << notice->text().toStdString();
  EXPECT_EQ(machine.mountButton(0)->title(), "mount disk0s1") << "the rows stay as they were";
  EXPECT_EQ(machine.listed(), QStringList("disk0s1")) << "the records before the failure are kept";
  EXPECT_THROW(machine.delegate.refreshLists(), std::invalid_argument);

  QFile::remove(icon);
  machine.platform.rename("disk0s1", "Other");
  machine.settle();
  EXPECT_FALSE(notice->isVisible());
  EXPECT_EQ(machine.mountButton(0)->title(), "umount disk0s1");
}

TEST(PartitionList, SaysWhyItIsEmpty) {
  TestMachine machine(R"({ "service": "asking" })");
  const auto sentence = [&] {
    machine.settle();
    return machine.interface.emptyView()->accessibleName().section('\n', 0, 0);
  };
  EXPECT_TRUE(machine.interface.emptyView()->isVisible());
  EXPECT_EQ(sentence(), "Looking for disks");
  machine.platform.setPresence(DiskService::Presence::Absent);
  EXPECT_EQ(sentence(), "No disk service answers");
  machine.platform.setPresence(DiskService::Presence::Answering);
  EXPECT_EQ(sentence(), "No EFI System Partition here");
  machine.tickShowAll();
  EXPECT_EQ(sentence(), "No partition here");
}
