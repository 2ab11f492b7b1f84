#include "conformance/ConformanceMachine.h"
#include "support/TestMachine.h"

namespace {

const QByteArray kMachine = R"json({ "disks": [
  { "unit": 3, "media": "Stick", "scheme": "GUID_partition_scheme", "partitions": [
    { "slice": 1, "media": "EFI System Partition", "uuid": "0e2f0b4c-1111-4c4c-8d8d-121212121212",
      "volume": { "kind": "msdos", "name": "EFI", "usedBy": [ "less (42)" ] } },
    { "slice": 2, "media": "Empty" } ] } ] })json";

class SimulatedConformance final : public ConformanceMachine {
 public:
  Platform &platform() override { return _machine.platform; }
  QString disk() const override { return "disk3"; }

  void mount() override { _machine.platform.mountFromOutside("disk3s1"); }
  void unmount() override { _machine.platform.unmountFromOutside("disk3s1"); }
  void rename(const QString &label) override { _machine.platform.rename("disk3s1", label); }
  void occupy() override { _machine.platform.setRefusals("disk3s1", std::nullopt, kDAReturnBusy); }
  void pull() override { _machine.platform.pull(3); }

 private:
  TestPlatform _machine{kMachine, QtRunLoop::kMoment};
};

}  // namespace

std::unique_ptr<ConformanceMachine> ConformanceMachine::make() {
  return std::make_unique<SimulatedConformance>();
}
