// The service's tree when it comes late or never, is huge, or comes anew again and again.

#include "service/ServiceTest.h"

using Presence = DiskService::Presence;
using Statuses = QList<DissenterStatus>;

namespace {

const QStringList kNames{"disk0", "disk0s1", "disk0s2"};

class Tree : public ServiceTest {
 public:
  QDBusMessage questionForTheTree() {
    EXPECT_TRUE(waitFor([&] { return !service.calls.isEmpty(); }));
    return service.take("GetManagedObjects");
  }
};

}  // namespace

TEST_F(Tree, MayComeAfterItsFirstChanges) {
  service.holdsTree = true;
  service.appear();
  startProgram();
  const auto question = questionForTheTree();
  const QString later = service.addPartition(disk, 3, 19);
  service.add(later, service.tree[later]);
  service.change(later, kPartitionInterface, "Type", "0x83");
  service.remove(esp);
  service.change(esp, kBlockInterface, "IdLabel", "of what is gone");
  service.tree.remove(esp);
  const QString brief = service.addPartition(disk, 4, 20);
  service.add(brief, service.tree[brief]);
  service.remove(brief);
  settle();
  EXPECT_EQ(disks->presence(), Presence::Asking);
  EXPECT_EQ(*mount("disk0s2"), Statuses{kDAReturnNotReady});
  service.answerWithTree(question);
  const QString last = service.addPartition(disk, 5, 21);
  service.add(last, service.tree[last]);
  service.change(last, kPartitionInterface, "Type", "0x82");
  settle();
  EXPECT_EQ(disks->presence(), Presence::Answering);
  EXPECT_EQ(names(), (QStringList{"disk0", "disk0s2", "disk0s3", "disk0s5"}));
  EXPECT_EQ(value("disk0s3", kDADiskDescriptionMediaContentKey), "0x83");
  EXPECT_EQ(value("disk0s5", kDADiskDescriptionMediaContentKey), "0x82");
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(events.count("changed"), events.size()) << "what was mounted is no news";
}

TEST_F(Tree, ThatIsRefusedTooLateOrMakesNoSenseIsNone) {
  const QList<std::function<void(const QDBusMessage &)>> replies = {
      [&](const auto &question) { service.refuse(question, "com.example.Error"); },
      [&](const auto &question) { service.answer(question); },
      [&](const auto &question) { service.answer(question, {"a text"}); },
      [&](const auto &question) {
        service.stepDown();
        EXPECT_TRUE(waitFor([&] { return disks->presence() == Presence::Absent; }));
        service.answerWithTree(question);
      },
  };
  service.holdsTree = true;
  startProgram();
  for (const auto &reply : replies) {
    service.appear();
    reply(questionForTheTree());
    settle();
    EXPECT_EQ(disks->presence(), Presence::Absent);
    service.add(disk, service.tree[disk]);
    settle();
    EXPECT_EQ(names(), QStringList{}) << "half a tree";
    EXPECT_EQ(*mount("disk0"), Statuses{kDAReturnNotReady});
    service.die();
  }
  service.holdsTree = false;
  service.appear();
  EXPECT_TRUE(waitFor([&] { return names() == kNames; }));
}

TEST_F(Tree, MayBeHugeAndInAFlurry) {
  QStringList partitions;
  for (uint unit = 0; unit < 8; ++unit) {
    const QString parent = service.addDisk(QString("vd") + QChar('a' + unit), 1000 + unit);
    for (uint number = 1; number <= 125; ++number) {
      partitions << service.addPartition(parent, number, 2000 + unit * 125 + number);
    }
  }
  service.appear();
  startProgram();
  ASSERT_TRUE(waitFor([&] { return names().size() == 3 + 8 + 1000; }));
  ASSERT_TRUE(waitFor([&] { return events.contains("changed"); }));
  events.clear();
  for (const char *label : {"one", "two", "three"}) {
    for (const QString &path : partitions) service.change(path, kBlockInterface, "IdLabel", label);
  }
  service.change(data, kBlockInterface, "IdLabel", "of a mounted volume");
  for (const QString &path : partitions.mid(0, 500)) service.remove(path);
  const Answers refused = mount("disk0s1");
  ASSERT_TRUE(waitFor([&] { return !service.calls.isEmpty(); }));
  service.refuse(service.take("Mount"), "com.example.Error");
  ASSERT_TRUE(waitFor([&] { return !refused->isEmpty(); }));
  EXPECT_EQ(names().size(), 3 + 8 + 500);
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(events.count("~" + mountPoint), 1);
  EXPECT_EQ(events.count("changed"), events.size() - 1);
  EXPECT_LT(events.size(), 200) << "told of in waves";
}

TEST_F(Tree, ComesAnewWithEveryLifeOfTheService) {
  start();
  for (const QString label : {"one", "two", "three"}) {
    const Answers first = mount("disk0s1");
    const Answers second = unmount("disk0s2");
    ASSERT_TRUE(waitFor([&] { return service.calls.size() == 2; }));
    if (label == "two") {  // it lives on for a moment, and nobody listens any more
      service.stepDown();
      ASSERT_TRUE(waitFor([&] { return !second->isEmpty(); }));
      while (!service.calls.isEmpty()) service.answer(service.calls.takeFirst());
      service.remove(disk);
      service.addDisk("sda", 16);
      settle();
    }
    service.die();
    EXPECT_TRUE(waitFor([&] { return !first->isEmpty() && !second->isEmpty(); }));
    service.appear();
    service.change(data, kBlockInterface, "IdLabel", label);
    EXPECT_TRUE(
        waitFor([&] { return value("disk0s2", kDADiskDescriptionVolumeNameKey) == label; }));
    EXPECT_EQ(names(), kNames);
    EXPECT_EQ(*first, Statuses{kDAReturnNotReady});
    EXPECT_EQ(*second, Statuses{kDAReturnNotReady});
  }
  events.removeAll("changed");
  events.removeAll("~" + mountPoint);
  EXPECT_EQ(events, QStringList{});
}
