// Invalid properties, incomplete objects, bytes that are not text.

#include <QDBusVariant>

#include "service/ServiceTest.h"

namespace {

const QVariantList kWrongValues = {
    "17",
    true,
    -1,
    link("/org/freedesktop/UDisks2/block_devices/sda"),
    QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant("text")))),
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

TEST_F(Properties, OfAWrongTypeCountAsAbsent) {
  const auto right = everything();
  const auto tree = service.tree;
  for (auto object = tree.begin(); object != tree.end(); ++object) {
    for (auto interface = object->begin(); interface != object->end(); ++interface) {
      for (auto property = interface->begin(); property != interface->end(); ++property) {
        SCOPED_TRACE((object.key() + ' ' + property.key()).toStdString());
        service.say(serviceSignal(object.key(), "PropertiesChanged",
                                  {interface.key(), QVariantMap(), QStringList{property.key()}}));
        settle();
        const auto without = everything();
        for (const QVariant &wrong : kWrongValues) {
          if (wrong.metaType() == property->metaType()) continue;
          service.change(object.key(), interface.key(), property.key(), *property);
          service.change(object.key(), interface.key(), property.key(), wrong);
          settle();
          EXPECT_EQ(everything(), without) << wrong.typeName();
        }
        service.change(object.key(), interface.key(), property.key(), *property);
      }
      service.remove(object.key(), {interface.key()});
      settle();
      service.add(object.key(), {{interface.key(), *interface}});
      settle();
      EXPECT_EQ(everything(), right) << "after a while without " << interface.key().toStdString();
    }
  }
}

TEST_F(Properties, WithInvalidLinksHideTheirPartition) {
  for (const QString &table : {QString("/"), QString("/nowhere"), esp, data}) {
    service.change(esp, kPartitionInterface, "Table", link(table));
    settle();
    EXPECT_EQ(names(), (QStringList{"disk0", "disk0s2", "disk1"})) << table.toStdString();
  }
  service.change(esp, kPartitionInterface, "Table", link(disk));
  service.change(data, kPartitionInterface, "Number", 1U);
  settle();
  EXPECT_EQ(names(), (QStringList{"disk0", "disk0s1", "disk1"})) << "the same number";
}
