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
  service.remove(esp);
  settle();
  EXPECT_EQ(disks->presence(), Presence::Asking);
  EXPECT_EQ(*mount("disk0s2"), Statuses{kDAReturnNotReady});
  service.answerWithTree(question);
  const QString last = service.addPartition(disk, 5, 21);
  service.add(last, service.tree[last]);
  settle();
  EXPECT_EQ(disks->presence(), Presence::Answering);
  EXPECT_EQ(names(), (QStringList{"disk0", "disk0s2", "disk0s3", "disk0s5"}));
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(events.count("changed"), events.size()) << "what was mounted is no news";
}

TEST_F(Tree, ThatIsRefusedTooLateOrMakesNoSenseIsNone) {
  const QList<std::function<void(const QDBusMessage &)>> replies = {
      [&](const auto &question) { service.refuse(question, "com.example.Error"); },
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
    service.die();
  }
  service.holdsTree = false;
  service.appear();
  EXPECT_TRUE(waitFor([&] { return names() == kNames; }));
}

TEST_F(Tree, MayChangeInAFlurry) {
  QStringList partitions;
  const QString parent = service.addDisk("vda", 1000);
  for (uint number = 1; number <= 500; ++number) {
    partitions << service.addPartition(parent, number, 2000 + number);
  }
  start();
  for (const char *label : {"one", "two", "three"}) {
    for (const QString &path : partitions) service.change(path, kBlockInterface, "IdLabel", label);
  }
  service.change(data, kBlockInterface, "IdLabel", "of a mounted volume");
  for (const QString &path : partitions.mid(0, 400)) service.remove(path);
  EXPECT_TRUE(waitFor([&] { return names().size() == 3 + 1 + 100; }));
  EXPECT_TRUE(waitFor([&] { return events.contains("changed"); }));
  EXPECT_EQ(events.count("~" + mountPoint), 1);
  EXPECT_LT(events.size(), 100) << "told of in waves";
}

TEST_F(Tree, ComesAnewWithEveryLifeOfTheService) {
  start();
  for (const bool livesOn : {false, true}) {
    const Answers mounted = mount("disk0s1");
    ASSERT_TRUE(waitFor([&] { return service.calls.size() == 1; }));
    if (livesOn) {  // for a moment, and nobody listens any more
      service.stepDown();
      ASSERT_TRUE(waitFor([&] { return !mounted->isEmpty(); }));
      service.answer(service.take("Mount"));
      service.remove(disk);
      service.addDisk("sda", 16);
      settle();
    }
    service.die();
    EXPECT_TRUE(waitFor([&] { return *mounted == Statuses{kDAReturnNotReady}; }));
    service.appear();
    const QString label = livesOn ? "two" : "one";
    service.change(data, kBlockInterface, "IdLabel", label);
    EXPECT_TRUE(
        waitFor([&] { return value("disk0s2", kDADiskDescriptionVolumeNameKey) == label; }));
    EXPECT_EQ(names(), kNames);
  }
  EXPECT_EQ(events.count("changed") + events.count("~" + mountPoint), events.size());
}
