#include <gtest/gtest.h>

#include <QLabel>

#include "Interface/EmptyView.h"
#include "support/TestMachine.h"

TEST(PartitionList, SortsByCodeUnitsNotByNumber) {
  const TestMachine machine(R"({ "disks": [
    { "unit": 1, "partitions": [ { "slice": 1, "media": "EFI System Partition" } ] },
    { "unit": 10, "partitions": [ { "slice": 1, "media": "EFI System Partition" } ] },
    { "unit": 0, "partitions": [ { "slice": 2, "media": "EFI System Partition" },
                                 { "slice": 10, "media": "EFI System Partition" } ] } ] })");
  EXPECT_EQ(machine.listed(), QStringList({"disk0s10", "disk0s2", "disk10s1", "disk1s1"}));
}

TEST(PartitionList, SaysWhyItIsEmpty) {
  TestMachine machine(R"({ "service": "asking" })");
  const auto sentence = [&] {
    machine.settle();
    return machine.interface.emptyView()->findChildren<QLabel *>().value(0)->text();
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
