#include "conformance/ConformanceMachine.h"
#include "macos/MacMachine.h"

namespace {

class MacConformance final : public ConformanceMachine, MacMachine {
 public:
  MacConformance() {
    mac.plug("disk0s2", {{"DAMediaBSDUnit", 0}, {"DAMediaWritable", true}});
    start();
    told();
  }

  Platform &platform() override { return *MacMachine::platform; }
  QString disk() const override { return "disk0"; }

  void mount() override { mac.mount(kEsp, "/Volumes/EFI"); }
  void unmount() override { mac.unmount(kEsp); }
  void rename(const QString &label) override { mac.rename(kEsp, label); }
  void occupy() override {
    mac.busyVolumes = {kEsp};
    mac.processes[42] = {mac.mountPoint(kEsp).toStdString(), "less"};
  }
  void pull() override {
    for (const char *name : {kEsp, "disk0s2", "disk0"}) mac.pull(name);
  }

 private:
  void TestBody() override {}
};

}  // namespace

std::unique_ptr<ConformanceMachine> ConformanceMachine::make() {
  return std::make_unique<MacConformance>();
}
