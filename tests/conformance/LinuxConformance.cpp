#include <QFile>

#include "conformance/ConformanceMachine.h"
#include "disks/DiskTest.h"

namespace {

class LinuxConformance final : public ConformanceMachine, DiskTest {
 public:
  LinuxConformance() {
    SetUp();
    _device = addDisk("disk", "label: gpt\ntype=U, size=32M\nsize=4M\n", 2);
    format(_device + "p1", "EFI");
  }
  ~LinuxConformance() override {
    _file.close();
    TearDown();
  }

  Platform &platform() override { return *DiskTest::platform; }
  QString disk() const override { return _name.isEmpty() ? _name = nameOf(_device) : _name; }

  void mount() override {
    DiskLab::run("mount", {"--mkdir", _device + "p1", DiskLab::file("tmp/conformance")});
  }
  void unmount() override { DiskLab::run("umount", {_device + "p1"}); }
  void rename(const QString &label) override {
    DiskLab::run("e2label", {_device + "p1", label});
    DiskLab::run("udevadm", {"trigger", "--action=change", "--settle", _device + "p1"});
  }
  void occupy() override {
    _file.setFileName(mountPointOf(disk() + "s1") + "/file");
    EXPECT_TRUE(_file.open(QIODevice::WriteOnly));
  }
  void pull() override { pullDisk(_device); }

 private:
  void TestBody() override {}

  QString _device;
  mutable QString _name;  // kept for after a pull
  QFile _file;
};

}  // namespace

std::unique_ptr<ConformanceMachine> ConformanceMachine::make() {
  if (!DiskLab::isHere()) return nullptr;
  return std::make_unique<LinuxConformance>();
}
