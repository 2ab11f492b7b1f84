// The contract that every backend must fulfil.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "DiskArbitrator/DiskArbitrator.h"
#include "Interface/InputGate.h"
#include "conformance/ConformanceMachine.h"
#include "support/VolumeNews.h"

namespace {

using Option = DiskService::UnmountOption;

class Conformance : public testing::Test {
 protected:
  void SetUp() override {
    machine = ConformanceMachine::make();
    if (!machine) GTEST_SKIP() << "no such machine can be here";
    esp = machine->disk() + "s1";
    empty = machine->disk() + "s2";
    listen(kNSWorkspaceDidMountNotification, "+");
    listen(kNSWorkspaceDidUnmountNotification, "-");
    listen(kNSWorkspaceDidRenameVolumeNotification, "~");
    ASSERT_TRUE(waitFor([&] { return service().presence() == DiskService::Presence::Answering; }));
  }

  static bool waitFor(const std::function<bool()> &condition) {
    return QTest::qWaitFor(condition, 10000);
  }

  DiskService &service() const { return machine->platform().diskService(); }
  DiskDescription description(const QString &name) const {
    return service().descriptionOfMedia(name).value_or(DiskDescription());
  }
  QVariant value(const QString &name, const QString &key) const {
    return description(name).value(key);
  }
  QString mountPoint() const {
    return value(esp, kDADiskDescriptionVolumePathKey).toUrl().toLocalFile();
  }

  DiskService::Completion answer() {
    return [this](const std::optional<Dissenter> &dissenter) {
      answers += dissenter ? dissenter->status : kDAReturnSuccess;
    };
  }
  /// The only answer to the request.
  DissenterStatus answered() {
    EXPECT_TRUE(waitFor([&] { return !answers.isEmpty(); })) << "no answer";
    QCoreApplication::processEvents();
    EXPECT_EQ(answers.size(), 1);
    return std::exchange(answers, {}).value(0);
  }
  DissenterStatus mount(const QString &name) {
    service().mount(name, std::nullopt, answer());
    return answered();
  }
  DissenterStatus unmount(const QString &name, Option option = Option::Default) {
    service().unmount(name, option, answer());
    return answered();
  }

  /// As a posted event, which the event loop serves before it blocks.
  static void later(const std::function<void()> &work) {
    QMetaObject::invokeMethod(qApp, work, Qt::QueuedConnection);
  }

  bool hears(const QStringList &expected) {
    const bool isHeard = waitFor([&] { return news == expected; });
    EXPECT_EQ(news, expected);
    news.clear();
    return isHeard;
  }

  std::unique_ptr<ConformanceMachine> machine;
  QString esp;
  QString empty;
  QStringList news;  // "+PATH", "-PATH" and "~PATH" for a mount, an unmount and a rename
  int changes = 0;   // announced without a path
  QList<DissenterStatus> answers;

 private:
  void listen(const QString &name, const QString &sign) {
    machine->platform().workspaceNotificationCenter().addObserver(
        &_observer, name, [this, sign](const Notification &note) {
          const QString path = note.userInfo.value(kNSDevicePathKey).toString();
          path.isEmpty() ? void(++changes) : void(news += sign + path);
        });
  }

  QObject _observer;
};

}  // namespace

TEST_F(Conformance, MediaAreListedAndDescribed) {
  const QString disk = machine->disk();
  const QStringList names = machine->platform().mediaRegistry().mediaNames();
  for (const QString &name : {disk, esp, empty}) {
    EXPECT_EQ(names.count(name), 1) << name.toStdString();
    EXPECT_EQ(value(name, kDADiskDescriptionMediaBSDNameKey), name);
    EXPECT_EQ("disk" + value(name, kDADiskDescriptionMediaBSDUnitKey).toString(), disk);
    EXPECT_EQ(value(name, kDADiskDescriptionMediaWritableKey), true);
    EXPECT_EQ(value(name, kDADiskDescriptionVolumePathKey), QVariant());
    EXPECT_EQ(value(name, kDADiskDescriptionVolumeNameKey), QVariant());
  }
  EXPECT_EQ(machine->platform().mediaRegistry().mediaNamesOnDisk(disk),
            (QStringList{disk, esp, empty}));
  EXPECT_EQ(value(disk, kDADiskDescriptionMediaContentKey), "GUID_partition_scheme");
  EXPECT_EQ(value(esp, kDADiskDescriptionMediaNameKey), "EFI System Partition");
  EXPECT_TRUE(value(esp, kDADiskDescriptionMediaUUIDKey).canConvert<DiskUUID>());
}

TEST_F(Conformance, UnknownMediaAreAbsentAndRefused) {
  for (const QString name : {"disk999", "disk999s1", "disk", ""}) {
    EXPECT_EQ(service().descriptionOfMedia(name), std::nullopt) << name.toStdString();
    EXPECT_EQ(machine->platform().mediaRegistry().mediaNamesOnDisk(name), QStringList{});
    EXPECT_EQ(mount(name), kDAReturnNotFound) << name.toStdString();
    EXPECT_EQ(unmount(name), kDAReturnNotFound) << name.toStdString();
  }
  EXPECT_EQ(service().descriptionOfVolume("/no/such/volume"), std::nullopt);
  EXPECT_EQ(mount(empty), kDAReturnUnsupported);
  EXPECT_EQ(unmount(esp), kDAReturnNotMounted);
  EXPECT_EQ(news, QStringList{});
}

TEST_F(Conformance, ABusyVolumeIsUnmountedByForceOnly) {
  ASSERT_EQ(mount(esp), kDAReturnSuccess);
  QString path = mountPoint();
  EXPECT_TRUE(hears({"+" + path}));
  EXPECT_EQ(value(esp, kDADiskDescriptionVolumeNameKey), "EFI");
  EXPECT_EQ(service().descriptionOfVolume(path), service().descriptionOfMedia(esp));
  EXPECT_EQ(service().descriptionOfVolume(path + "/"), std::nullopt);
  EXPECT_EQ(mount(esp), kDAReturnBusy);

  EXPECT_EQ(unmount(esp), kDAReturnSuccess);
  EXPECT_TRUE(hears({"-" + path}));
  EXPECT_EQ(mountPoint(), "");
  EXPECT_EQ(value(esp, kDADiskDescriptionVolumeNameKey), QVariant());
  EXPECT_EQ(service().descriptionOfVolume(path), std::nullopt);

  const CurrentPlatform current(machine->platform());
  EXPECT_TRUE(DiskArbitrator::mountPartition(esp, std::nullopt));
  path = mountPoint();
  EXPECT_EQ(DiskArbitrator::findEFIdiskOfTheParentDisk(path), esp) << "as soon as the wait is over";
  EXPECT_TRUE(hears({"+" + path}));
  machine->occupy();
  EXPECT_EQ(unmount(esp), kDAReturnBusy);
  EXPECT_EQ(mountPoint(), path);
  EXPECT_FALSE(processesUsing(machine->platform(), path).isEmpty());
  EXPECT_EQ(unmount(esp, Option::Force), kDAReturnSuccess);
  EXPECT_TRUE(hears({"-" + path}));
  EXPECT_EQ(mountPoint(), "");
}

TEST_F(Conformance, ChangesByOtherProgramsAreAnnounced) {
  machine->mount();
  EXPECT_TRUE(waitFor([&] { return !mountPoint().isEmpty(); }));
  EXPECT_TRUE(hears({"+" + mountPoint()}));

  machine->rename("OTHER");
  EXPECT_TRUE(waitFor([&] { return !news.isEmpty(); }));
  EXPECT_TRUE(hears({"~" + mountPoint()}));
  EXPECT_EQ(value(esp, kDADiskDescriptionVolumeNameKey), "OTHER");

  const QString path = mountPoint();
  machine->unmount();
  EXPECT_TRUE(hears({"-" + path}));

  changes = 0;
  machine->rename("UNSEEN");
  EXPECT_TRUE(waitFor([&] { return changes > 0; })) << "an unmounted volume's name";
  EXPECT_EQ(news, QStringList{});
}

TEST_F(Conformance, APulledDiskIsGone) {
  ASSERT_EQ(mount(esp), kDAReturnSuccess);
  const QString path = mountPoint();
  EXPECT_TRUE(hears({"+" + path}));
  changes = 0;
  machine->pull();
  EXPECT_TRUE(hears({"-" + path}));
  EXPECT_TRUE(waitFor([&] { return changes > 0 && description(esp).isEmpty(); }));
  EXPECT_FALSE(machine->platform().mediaRegistry().mediaNames().contains(esp));
  EXPECT_EQ(service().descriptionOfVolume(path), std::nullopt);
  EXPECT_EQ(mount(esp), kDAReturnNotFound);
  EXPECT_EQ(news, QStringList{}) << "the unmount should be announced once";
}

TEST_F(Conformance, AWaitEndsWithItsOwnFlagOnly) {
  RunLoop &loop = machine->platform().runLoop();
  bool isOuterOver = true;
  loop.stop();  // no run is waiting: nothing is stopped
  loop.run(isOuterOver);

  isOuterOver = false;
  QStringList order;
  const auto end = [&](bool &flag) { return [&] { flag = true, loop.stop(); }; };
  later([&] {
    bool isInnerOver = false;
    later(end(isOuterOver));
    QTimer::singleShot(5, end(isInnerOver));
    loop.run(isInnerOver);
    order += isInnerOver ? "inner" : "too early";
  });
  loop.run(isOuterOver);
  EXPECT_EQ(order << "outer", (QStringList{"inner", "outer"}));
}

TEST_F(Conformance, AWaitEndsEvenIfANestedLoopHasConsumedTheStop) {
  RunLoop &loop = machine->platform().runLoop();
  bool isOver = false;
  const auto poll = [&] {
    while (!isOver) loop.servePending();
  };
  const auto showDialog = [] {
    QEventLoop dialog;
    QTimer::singleShot(5, &dialog, &QEventLoop::quit);
    dialog.exec();
  };
  for (const auto &runInside : {std::function<void()>(poll), std::function<void()>(showDialog)}) {
    isOver = false;
    later([&] {
      later([&] { isOver = true, loop.stop(); });
      runInside();
    });
    QElapsedTimer time;
    time.start();
    loop.run(isOver);
    EXPECT_LT(time.elapsed(), 2000);
  }
}

TEST_F(Conformance, APollServesEventsAtMostFiftyTimesASecond) {
  bool isServed = false;
  QTimer::singleShot(5, [&] { isServed = true; });
  QElapsedTimer time;
  time.start();
  for (int times = 0; times < 3; ++times) machine->platform().runLoop().servePending();
  EXPECT_TRUE(isServed);
  EXPECT_GE(time.elapsed(), 55);
}

TEST_F(Conformance, ATapDuringAWaitDoesNotReachTheButtonAfterwards) {
  QPushButton button;
  button.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
  const auto tap = [&] {
    const QPoint place = button.rect().center();
    QTest::touchEvent(&button, screen.get(), false).press(0, place, &button).commit(false);
    QTest::touchEvent(&button, screen.get(), false).release(0, place, &button).commit(false);
  };
  {
    const InputGate gate(&button);
    RunLoop &loop = machine->platform().runLoop();
    bool isOver = false;
    later([&] { tap(), isOver = true, loop.stop(); });
    loop.run(isOver);
    later(tap);  // input that the loop has not yet served
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(clicks, 0);
  tap();
  QCoreApplication::processEvents();
  EXPECT_EQ(clicks, 1);
}

TEST_F(Conformance, SettingsAndLoginItemsAreStored) {
  UserDefaults &defaults = machine->platform().userDefaults();
  for (const bool isOn : {true, false}) {
    defaults.setBool("RunAtload", isOn);
    defaults.synchronize();
    EXPECT_EQ(defaults.object("RunAtload").toBool(), isOn);
  }
  EXPECT_FALSE(defaults.object("never set").isValid());

  LoginItems &items = machine->platform().loginItems();
  const auto ownItem = [&] {
    for (const auto &item : items.snapshot().value_or(QVector<LoginItems::Item>())) {
      if (item.location == items.ownLocation()) return std::optional(item);
    }
    return std::optional<LoginItems::Item>();
  };
  // An earlier start of the program may have left an item.
  while (const auto item = ownItem()) items.remove(*item);
  items.insertOwnItem();
  const auto own = ownItem();
  ASSERT_TRUE(own);
  items.remove(*own);
  items.remove(*own);
  EXPECT_FALSE(ownItem());
}
