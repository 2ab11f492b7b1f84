// Properties that make no sense, objects that lack their other half, bytes that are no text.

#include <QDBusVariant>
#include <QUrl>

#include "service/ServiceTest.h"

namespace {

const QVariantList kWrongValues = {
    "17",
    QByteArray("/dev/\xff\xfe"),
    true,
    -1,
    12.5,
    link("/org/freedesktop/UDisks2/block_devices/sda"),
    QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant("text")))),
    QVariantMap{{"a", "map"}},
    QVariant::fromValue(QByteArrayList{"\x80", ""}),
};

class Properties : public ServiceTest {
 public:
  void SetUp() override {
    const QString loop = service.addDisk("loop0", 32);
    service.tree[loop][kLoopInterface] = {{"BackingFile", QByteArray("/images/file.img\0", 17)}};
    service.appear();
    startProgram();
    ASSERT_TRUE(waitFor([&] { return names().size() == 4; }));
  }
};

}  // namespace

TEST_F(Properties, OfAWrongTypeAreAsGoodAsNone) {
  const auto right = everything();
  const auto tree = service.tree;
  for (auto object = tree.begin(); object != tree.end(); ++object) {
    for (auto interface = object->begin(); interface != object->end(); ++interface) {
      for (auto property = interface->begin(); property != interface->end(); ++property) {
        SCOPED_TRACE((object.key() + ' ' + property.key()).toStdString());
        const auto set = [&](const QVariant &value) {
          service.change(object.key(), interface.key(), property.key(), value);
        };
        service.say(propertiesChanged(
            object.key(), {interface.key(), QVariantMap(), QStringList{property.key()}}));
        settle();
        const auto without = everything();
        for (const QVariant &wrong : kWrongValues) {
          if (wrong.metaType() == property->metaType()) continue;
          set(*property);
          set(wrong);
          settle();
          EXPECT_EQ(everything(), without) << wrong.typeName();
        }
        set(*property);
        settle();
        EXPECT_EQ(everything(), right);
      }
    }
  }
}

TEST_F(Properties, MayHoldBytesThatAreNoText) {
  const QByteArray bytes = "/dev/\xff\xc3(\xed\xa0\x80%1&<b>\n";
  const QString text = QString::fromUtf8(bytes);
  for (const QByteArray &ending : {QByteArray(), QByteArray("\0rest", 5)}) {
    const QString loop = kServiceRoot + "/block_devices/loop0";
    service.change(loop, kLoopInterface, "BackingFile", bytes + ending);
    service.change(loop, kBlockInterface, "PreferredDevice", bytes + ending);
    service.change(esp, kBlockInterface, "Device", bytes + ending);
    service.change(esp, kBlockInterface, "PreferredDevice", QByteArray("\0", 1));
    service.change(data, kFilesystemInterface, "MountPoints",
                   QVariant::fromValue(QByteArrayList{bytes + ending, "", "relative"}));
    settle();
    EXPECT_EQ(value("disk1", kDADiskDescriptionMediaNameKey), text.section('/', -1));
    EXPECT_EQ(value("disk1", kDiskDescriptionDeviceNodeKey), text);
    EXPECT_EQ(value("disk0s1", kDiskDescriptionDeviceNodeKey), text);
    EXPECT_EQ(value("disk0s2", kDADiskDescriptionVolumePathKey), QUrl::fromLocalFile(mountPoint));
  }
}

TEST_F(Properties, MayLackTheirOtherHalf) {
  const auto right = everything();
  const auto tree = service.tree;
  for (auto object = tree.begin(); object != tree.end(); ++object) {
    for (auto interface = object->begin(); interface != object->end(); ++interface) {
      SCOPED_TRACE((object.key() + ' ' + interface.key()).toStdString());
      service.remove(object.key(), {interface.key()});
      settle();
      if (interface.key() == kBlockInterface) {
        EXPECT_EQ(value("disk0s2", kDADiskDescriptionMediaBSDNameKey).isNull(),
                  object.key() == disk || object.key() == data);
      }
      service.add(object.key(), {{interface.key(), *interface}});
      settle();
      EXPECT_EQ(everything(), right);
    }
  }
}

TEST_F(Properties, MayLinkToNothingOrToThemselves) {
  const QStringList others{"disk0", "disk0s2", "disk1"};
  for (const QString &table : {QString("/"), QString("/nowhere"), esp}) {
    service.change(esp, kPartitionInterface, "Table", link(table));
    settle();
    EXPECT_EQ(names(), others) << table.toStdString();
  }
  service.change(esp, kPartitionInterface, "Table", link(data));
  service.change(data, kPartitionInterface, "Table", link(esp));
  service.change(disk, kBlockInterface, "Drive", link("/nowhere"));
  settle();
  EXPECT_EQ(names(), (QStringList{"disk0", "disk1"}));
  service.change(esp, kPartitionInterface, "Table", link(disk));
  service.change(data, kPartitionInterface, "Table", link(disk));
  service.change(data, kPartitionInterface, "Number", 1U);
  settle();
  EXPECT_EQ(names(), (QStringList{"disk0", "disk0s1", "disk1"})) << "two of one number";
}
