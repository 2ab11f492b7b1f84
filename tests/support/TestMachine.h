#pragma once

// The whole program, with real widgets, on a simulated machine whose clock the test controls.

#include "Platform/simulated/SimulatedPlatform.h"
#include "support/Program.h"

/// A clock that advances by one step at each reading, so that no wait takes real time.
class SteppingClock final : public Clock {
 public:
  std::chrono::milliseconds now() const override { return _now += std::chrono::milliseconds(100); }
  std::chrono::milliseconds elapsed() const { return _now; }

 private:
  mutable std::chrono::milliseconds _now{0};
};

/// The machine of a machine file. Fails the test when the file is refused.
Machine machineOf(const QByteArray &json);

/// A dual-boot disk0 (ESP, data, root), disk1 with an ESP and a data partition mounted at "Data",
/// and disk2, an MBR stick without an ESP.
QByteArray twoEspMachine();

/// A simulated platform that is the current one.
class TestPlatform {
 public:
  explicit TestPlatform(const QByteArray &json, std::chrono::milliseconds moment = {})
      : clock(new SteppingClock),
        platform(machineOf(json), std::unique_ptr<Clock>(clock), moment),
        current(platform) {}

  QString folder(const QString &name) const { return platform.volumesFolder() + u'/' + name; }

  SteppingClock *clock;  // owned by the platform
  SimulatedPlatform platform;
  CurrentPlatform current;
};

/// The tooltip that the widget shows.
QString toolTipOf(QWidget *widget);

class TestMachine : public TestPlatform, public Program {
 public:
  explicit TestMachine(const QByteArray &json) : TestPlatform(json), Program(platform) {}

  TextField::TextColor statusColor() const { return interface.statusTextField()->textColor(); }
  QString text(qint64 row) const { return cell(row)->textField()->stringValue(); }
  RowButton *mountButton(qint64 row) const { return cell(row)->mountButton(); }
  void tickShowAll() {
    QTest::mouseClick(interface.showAllDisksCheck(), Qt::LeftButton, {}, {8, 8});
  }
};
