#include <QCoreApplication>
#include <QTemporaryDir>

#include "Platform/common/SystemFilesRoot.h"
#include "Platform/macos/MacPlatform.h"
#include "conformance/ConformanceMachine.h"
#include "macos/fake/Fake.h"

namespace {

constexpr char kEsp[] = "disk3s1";

class MacConformance final : public ConformanceMachine {
 public:
  MacConformance() {
    _mac.volumesFolder = _volumes.path().toStdString();
    _mac.plug("disk3", {{"DAMediaName", "Stick"},
                        {"DAMediaBSDUnit", 3},
                        {"DAMediaContent", "GUID_partition_scheme"},
                        {"DAMediaWritable", true}});
    _mac.plug(kEsp, {{"DAMediaName", "EFI System Partition"},
                     {"DAMediaBSDUnit", 3},
                     {"DAMediaUUID", fake::Uuid{"0E2F0B4C-1111-4C4C-8D8D-121212121212"}},
                     {"DAMediaWritable", true},
                     {"DAVolumeKind", "msdos"},
                     {"DAVolumeName", "EFI"}});
    _mac.plug("disk3s2",
              {{"DAMediaName", "Empty"}, {"DAMediaBSDUnit", 3}, {"DAMediaWritable", true}});
    _platform = makeMacPlatform(systemFilesRoot());
    // What is there from the beginning has been told.
    fake::serve();
    QCoreApplication::processEvents();
  }

  Platform &platform() override { return *_platform; }
  QString disk() const override { return "disk3"; }

  void mount() override { _mac.mount(kEsp, _mac.volumesFolder + "/EFI"); }
  void unmount() override { _mac.unmount(kEsp); }
  void rename(const QString &label) override {
    const bool isMounted = _mac.mountPoint(kEsp).has_value();
    const std::string name = label.toStdString();
    _mac.rename(kEsp, name,
                isMounted ? std::optional(_mac.volumesFolder + "/" + name) : std::nullopt);
  }
  void occupy() override {
    _mac.onUnmount(kEsp) = fake::refused(kDAReturnBusy);
    _mac.processes[_mac.mountPoint(kEsp).value()] = {{42, "less"}};
  }
  void pull() override {
    for (const char *name : {kEsp, "disk3s2", "disk3"}) _mac.pull(name);
  }

 private:
  QTemporaryDir _volumes;
  fake::Machine _mac;
  std::unique_ptr<Platform> _platform;
};

}  // namespace

std::unique_ptr<ConformanceMachine> ConformanceMachine::make() {
  return std::make_unique<MacConformance>();
}
