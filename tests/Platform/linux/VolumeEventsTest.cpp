#include "Platform/linux/VolumeEvents.h"

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <QFile>
#include <QTemporaryDir>

#include "Platform/Platform.h"
#include "Platform/linux/ServiceMachine.h"

namespace {

const QString kMounted = kNSWorkspaceDidMountNotification;
const QString kUnmounted = kNSWorkspaceDidUnmountNotification;

/// A mount table whose lines are in the test's hand, and media that come and go beside it.
class VolumeEventsTest : public testing::Test {
 public:
  QStringList newsWith(const QByteArrayList &mounts) {
    return texts(events.news(*tableOf(mounts), media));
  }
  void accept(const QByteArrayList &mounts) { events.accept(*tableOf(mounts), media); }
  QStringList pull(quint64 device) { return texts(events.pulled(device)); }

  void plug(const QString &name, uint minorNumber) {
    const QString path = machine.addDisk(name, minorNumber);
    media.update(machine.objects, {path});
  }
  void forgetAll() {
    const auto paths = machine.objects.keys();
    machine.objects.clear();
    media.update(machine.objects, {paths.begin(), paths.end()});
  }

  ServiceMachine machine;
  MediaCatalog media = machine.catalog();
  VolumeEvents events;

 private:
  std::unique_ptr<MountTable> tableOf(const QByteArrayList &mounts) {
    QFile file(_folder.filePath("mountinfo"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(mounts.join('\n'));
    file.close();
    auto table = std::make_unique<MountTable>(file.fileName());
    table->refresh();
    return table;
  }
  static QStringList texts(const QList<VolumeEvent> &list) {
    QStringList all;
    for (const VolumeEvent &event : list) {
      all << (event.name == kMounted     ? "+"
              : event.name == kUnmounted ? "-"
                                         : "?") +
                 event.mountPoint;
    }
    return all;
  }

  QTemporaryDir _folder;
};

const QByteArray kFirst = "30 1 8:1 / /media/one rw - ext4 /dev/sda rw";
const QByteArray kSecond = "31 1 8:1 / /media/two rw - ext4 /dev/sda rw";
const QByteArray kOther = "32 1 8:2 / /media/other rw - ext4 /dev/sdb rw";
const quint64 kDevice = makedev(8, 1);

}  // namespace

TEST_F(VolumeEventsTest, AreTheDifferencesOfTheTable) {
  plug("sda", 1);
  plug("sdb", 2);
  accept({kOther});
  EXPECT_EQ(newsWith({kFirst, kOther}), QStringList{"+/media/one"});
  EXPECT_EQ(newsWith({kFirst, kOther}), QStringList{});
  EXPECT_EQ(newsWith({kFirst, kSecond}), (QStringList{"-/media/other", "+/media/two"}));
  EXPECT_EQ(newsWith({kSecond}), QStringList{"-/media/one"});
}

TEST_F(VolumeEventsTest, WaitForTheMediumToBeAnnounced) {
  EXPECT_EQ(newsWith({kFirst}), QStringList{});
  EXPECT_EQ(newsWith({}), QStringList{}) << "nobody ever knew it";
  EXPECT_EQ(newsWith({kFirst}), QStringList{});
  plug("sda", 1);
  EXPECT_EQ(newsWith({kFirst}), QStringList{"+/media/one"});
}

TEST_F(VolumeEventsTest, DoNotTellOfWhatWasMountedBeforeTheServiceCame) {
  accept({kFirst});
  plug("sda", 1);
  EXPECT_EQ(newsWith({kFirst}), QStringList{});
  EXPECT_EQ(newsWith({}), QStringList{"-/media/one"});
}

TEST_F(VolumeEventsTest, TellOfAPulledMediumOnceWhateverTheTableSays) {
  plug("sda", 1);
  newsWith({kFirst, kSecond});
  EXPECT_TRUE(events.concern(kDevice));
  EXPECT_FALSE(events.concern(makedev(8, 2)));
  EXPECT_EQ(pull(kDevice), (QStringList{"-/media/one", "-/media/two"}));
  EXPECT_FALSE(events.concern(kDevice));
  forgetAll();
  EXPECT_EQ(newsWith({kFirst}), QStringList{});
  EXPECT_EQ(newsWith({}), QStringList{});
  EXPECT_EQ(pull(kDevice), QStringList{});
}

TEST_F(VolumeEventsTest, AreNoneWhenTheServiceForgetsAndRemembers) {
  plug("sda", 1);
  newsWith({kFirst, kSecond});
  forgetAll();
  EXPECT_EQ(newsWith({kFirst, kSecond}), QStringList{});
  EXPECT_EQ(newsWith({kFirst}), QStringList{"-/media/two"}) << "a volume that was known";
  plug("sda", 1);
  EXPECT_EQ(newsWith({kFirst}), QStringList{});
}
