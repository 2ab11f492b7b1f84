// The service's tree arrives late or never, is huge, or is fetched again and again.

#include <QUuid>

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

TEST_F(Tree, MayArriveAfterSignalsOfItsChanges) {
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
  EXPECT_EQ(events.count("changed"), events.size()) << "old mounts are not announced";
}

TEST_F(Tree, ThatIsRefusedLateOrInvalidIsIgnored) {
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
    EXPECT_EQ(names(), QStringList{}) << "a partial tree";
    service.die();
  }
  service.holdsTree = false;
  service.appear();
  EXPECT_TRUE(waitFor([&] { return names() == kNames; }));
}

TEST_F(Tree, ManyChangesAreReportedTogether) {
  start();
  for (int count = 0; count < 300; ++count) {
    service.change(esp, kPartitionInterface, "UUID", QUuid::createUuid().toString());
  }
  service.change(data, kBlockInterface, "IdLabel", "new");
  EXPECT_TRUE(waitFor([&] { return events.contains("~" + mountPoint); }));
  EXPECT_LT(events.size(), 30) << "changes are announced together";
}

TEST_F(Tree, IsFetchedAgainAfterEachRestartOfTheService) {
  start();
  const Answers mounted = mount("disk0s1");
  ASSERT_TRUE(waitFor([&] { return service.calls.size() == 1; }));
  service.stepDown();  // still running, but its messages are ignored
  ASSERT_TRUE(waitFor([&] { return !mounted->isEmpty(); }));
  service.answer(service.take("Mount"));
  service.remove(disk);
  service.addDisk("sda", 16);
  settle();
  service.die();
  EXPECT_EQ(*mounted, Statuses{kDAReturnNotReady});
  service.appear();
  service.change(data, kBlockInterface, "IdLabel", "new");
  EXPECT_TRUE(waitFor([&] { return value("disk0s2", kDADiskDescriptionVolumeNameKey) == "new"; }));
  EXPECT_EQ(names(), kNames);
  EXPECT_EQ(events.count("changed") + events.count("~" + mountPoint), events.size());
}
