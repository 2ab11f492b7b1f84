// The whole program, real widgets and all, on a service that refuses, hangs and dies.

#include <QTimer>

#include "disks/Program.h"
#include "service/ServiceTest.h"
#include "support/TestMachine.h"

namespace {

/// The disks of the real backend on a machine that is simulated otherwise, time included.
class MockedPlatform final : public Platform {
 public:
  MockedPlatform(LinuxDiskService &disks, NotificationCenter &workspace)
      : _disks(disks), _workspace(workspace) {}

  DiskService &diskService() override { return _disks; }
  MediaRegistry &mediaRegistry() override { return _disks; }
  RawDevices &rawDevices() override { return _rest.rawDevices(); }
  SystemPrograms &systemPrograms() override { return _rest.systemPrograms(); }
  RunLoop &runLoop() override { return _rest.runLoop(); }
  Clock &clock() override { return _rest.clock(); }
  SystemFiles &systemFiles() override { return _rest.systemFiles(); }
  LoginItems &loginItems() override { return _rest.loginItems(); }
  UserDefaults &userDefaults() override { return _rest.userDefaults(); }
  std::optional<QString> driverBundle(const QString &identifier) const override {
    return _rest.driverBundle(identifier);
  }
  std::optional<QImage> imageOnVolume(const QString &path) const override {
    return _rest.imageOnVolume(path);
  }
  QStringList processesUsing(const QString & /*mountPoint*/) const override { return {}; }
  QString volumesFolder() const override { return folder.path(); }
  QString legacyVolumesFolder() const override { return folder.path(); }
  QString applicationSupportFolder() const override { return _rest.applicationSupportFolder(); }
  NotificationCenter &workspaceNotificationCenter() override { return _workspace; }

 private:
  const QTemporaryDir folder;
  LinuxDiskService &_disks;
  NotificationCenter &_workspace;
  SimulatedPlatform _rest{Machine(), std::make_unique<SteppingClock>()};
};

class ProgramOnAMockedService : public ServiceTest {
 public:
  void SetUp() override {
    start();
    platform = std::make_unique<MockedPlatform>(*disks, workspace);
    program = std::make_unique<Program>(*platform);
  }
  void TearDown() override {
    program.reset();
    platform.reset();
  }

  /// Clicks, and looks again and again, while the click is under way, whether something is to be
  /// done. A click that takes too long is a failure, and the service's end.
  void clickMeanwhile(const QString &name, const std::function<void()> &action) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, action);
    timer.start(1);
    QTimer deadline;
    QObject::connect(&deadline, &QTimer::timeout, [this, name] {
      ADD_FAILURE() << "nothing happens: "
                    << program->rowOf(name)->textField()->stringValue().toStdString();
      service.die();
    });
    deadline.start(10000);
    program->click(name);
  }

  std::unique_ptr<MockedPlatform> platform;
  std::unique_ptr<Program> program;
};

}  // namespace

TEST_F(ProgramOnAMockedService, SaysWhyItWasRefused) {
  const struct {
    const char *partition;
    const char *error;
    const char *message;
  } kRows[] = {
      {"disk0s1", "NotAuthorizedCanObtain", "mount failed for disk0s1, status not privileged"},
      {"disk0s1", "NotAuthorized", "mount failed for disk0s1, status not permitted"},
      {"disk0s1", "NotAuthorizedDismissed", "mount failed for disk0s1, status Operation canceled"},
      {"disk0s2", "NotAuthorizedDismissed",
       "umount failed for disk0s2, reason: Operation canceled"},
      {"disk0s2", "DeviceBusy", "umount failed for disk0s2, reason: busy"},
  };
  for (const auto &row : kRows) {
    clickMeanwhile(row.partition, [&] {
      if (service.calls.isEmpty()) return;
      service.refuse(service.calls.takeFirst(),
                     QStringLiteral("org.freedesktop.UDisks2.Error.") + row.error);
    });
    EXPECT_TRUE(program->says(row.message)) << row.message;
    EXPECT_EQ(program->interface.statusTextField()->textColor(), TextField::TextColor::Red);
  }
}

TEST_F(ProgramOnAMockedService, IsAliveWhileAPasswordIsAskedForUntilTheServiceIsLost) {
  const auto text = [&] { return program->rowOf("disk0s1")->textField()->stringValue(); };
  ASSERT_FALSE(text().contains("Renamed"));
  QString textMeanwhile;
  clickMeanwhile("disk0s1", [&] {
    if (!service.calls.isEmpty()) {
      service.take("Mount");
      service.change(data, kBlockInterface, "IdLabel", "Renamed");
    } else if (textMeanwhile.isEmpty() && text().contains("Renamed")) {
      textMeanwhile = text();
      service.die();
    }
  });
  EXPECT_TRUE(textMeanwhile.contains("Renamed")) << "the list was not rebuilt";
  EXPECT_TRUE(program->says("mount failed for disk0s1, status not ready"));
}
