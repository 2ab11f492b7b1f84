// Buses that are frozen when the program starts, or that restart.

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QMenu>

#include "Platform/ThisMachine.h"
#include "service/ServiceTest.h"

namespace {

const QString kName = "com.example.Program";

/// One bus for all services.
class Bus : public ServiceTest {
 public:
  Bus() { qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit()); }
};

/// A panel with a tray.
class MockPanel final : public QDBusVirtualObject {
 public:
  explicit MockPanel(const QString &bus) : _bus(QDBusConnection::connectToBus(bus, "panel")) {
    _bus.registerVirtualObject("/", this, QDBusConnection::SubPath);
    _bus.registerService("org.kde.StatusNotifierWatcher");
  }
  ~MockPanel() override {
    _bus.unregisterObject("/", QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus("panel");
  }
  bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override {
    isRegistered |= message.member() == "RegisterStatusNotifierItem";
    const auto yes = QVariant::fromValue(QDBusVariant(true));
    return bus.send(message.member() == "Get" ? message.createReply(yes) : message.createReply());
  }
  QString introspect(const QString &) const override { return {}; }

  /// Whether the program's own name is on the bus.
  bool canCallProgram() const { return _bus.interface()->isServiceRegistered(kName); }

  bool isRegistered = false;

 private:
  QDBusConnection _bus;
};

}  // namespace

TEST_F(Bus, ThatIsFrozenAtTheStartDelaysNothing) {
  bus.freeze();
  QElapsedTimer sinceStart;
  sinceStart.start();
  startProgram();
  const auto desktop = makeDesktop(kName);
  EXPECT_TRUE(desktop->becomeOnlyInstance());
  EXPECT_LT(sinceStart.elapsed(), 2000);
  EXPECT_EQ(disks->presence(), DiskService::Presence::Asking);
  EXPECT_TRUE(waitFor([&] { return disks->presence() == DiskService::Presence::Absent; }));
  EXPECT_LT(sinceStart.elapsed(), 5000);
  bus.thaw();
  service.appear();
  const MockPanel panel(bus.address());
  EXPECT_TRUE(waitFor([&] { return !names().isEmpty() && panel.canCallProgram(); }));
}

TEST_F(Bus, ThatRestartsRestoresTheListTheNameAndTheItem) {
  start();
  const auto right = everything();
  const auto desktop = makeDesktop(kName);
  EXPECT_TRUE(desktop->becomeOnlyInstance());
  EXPECT_FALSE(makeDesktop(kName)->becomeOnlyInstance());
  const auto item = desktop->makeTrayItem();
  for (int life = 0; life < 2; ++life) {
    const MockPanel panel(bus.address());
    EXPECT_TRUE(waitFor([&] { return panel.isRegistered && panel.canCallProgram(); }));
    EXPECT_EQ(item->kind(), "StatusNotifierItem");
    const Answers lost = mount("disk0s1");
    EXPECT_TRUE(waitFor([&] { return !service.calls.isEmpty(); }));
    service.die();
    bus.restart();  // the panel returns before the program does
    EXPECT_TRUE(waitFor([&] { return names().isEmpty() && !lost->isEmpty(); }));
    EXPECT_EQ(*lost, QList{kDAReturnNotReady});
    service.appear();
    EXPECT_TRUE(waitFor([&] { return everything() == right; }));
    const Answers answered = mount("disk0s1");
    EXPECT_TRUE(waitFor([&] { return !service.calls.isEmpty(); }));
    service.answer(service.take("Mount"));
    EXPECT_TRUE(waitFor([&] { return *answered == QList{kDAReturnSuccess}; }));
  }
}
