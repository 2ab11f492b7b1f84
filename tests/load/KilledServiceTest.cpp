// The disk service is killed at random moments during clicks.

#include <QStorageInfo>
#include <QTimer>
#include <algorithm>

#include "disks/DiskTest.h"
#include "load/Load.h"
#include "support/Program.h"

namespace {

/// Empty when nothing of the device is mounted.
QString kernelMountPoint(const QString &device) {
  for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
    if (volume.device() == device.toUtf8()) return volume.rootPath();
  }
  return {};
}

class KilledService : public DiskTest {
 public:
  /// Whether row, platform and kernel agree on a partition.
  bool isTrue(const Program &program, const QString &device) const {
    const QString name = nameOf(device);
    const ESPTableCellView *row = name.isEmpty() ? nullptr : program.rowOf(name);
    const QString path = kernelMountPoint(device);
    return row && mountPointOf(name) == path && !row->mountButton()->isBusy() &&
           row->mountButton()->title() == (path.isEmpty() ? "mount " : "umount ") + name &&
           row->openButton()->title() == "open " + (path.isEmpty() ? "(null)" : path);
  }

  /// Whether the platform is connected to the service again: only then is a missing disk reported
  /// as not found.
  bool isReady() const {
    DissenterStatus status = kDAReturnNotReady;
    platform->diskService().mount("disk999", std::nullopt,
                                  [&](const auto &dissenter) { status = dissenter->status; });
    return status != kDAReturnNotReady;
  }

  /// Requests the opposite of the present state.
  void ask(const QString &name, const DiskService::Completion &completion) {
    DiskService &service = platform->diskService();
    mountPointOf(name).isEmpty()
        ? service.mount(name, std::nullopt, completion)
        : service.unmount(name, DiskService::UnmountOption::Default, completion);
  }
};

}  // namespace

TEST_F(KilledService, AnswersEachRequestOnceAndTheListMatchesTheKernel) {
  const quint64 seed = loadSeed();
  const int rounds = loadCount(200, 10);
  Chance chance(seed);
  const QString disk = addDisk("disk", "label: gpt\ntype=U, size=24M\ntype=U, size=24M\n", 2);
  const QString clicked = disk + "p1";
  const QString asked = disk + "p2";
  format(clicked, "CLICKED");
  format(asked, "ASKED");
  Program program(*platform);

  std::vector<int> answers(static_cast<std::size_t>(rounds));
  QObject observer;
  for (int &count : answers) {
    program.interface.forceUmountCheck()->setState(chance.oneIn(4));
    bool isBack = false;
    const int absence = chance.below(300);
    QTimer::singleShot(chance.below(200), &observer, [&observer, &isBack, absence] {
      DiskLab::run("disk-service", {"kill", "udisksd"});
      QTimer::singleShot(absence, &observer, [&isBack] {
        DiskLab::run("disk-service", {"start", "udisksd"});
        isBack = true;
      });
    });
    ask(nameOf(asked), [&count](const auto &) { ++count; });
    program.click(nameOf(clicked));
    ASSERT_TRUE(waitFor([&] { return isBack && count > 0 && isReady(); }))
        << "KELDRA_LOAD_SEED=" << seed;
    ASSERT_TRUE(waitFor([&] { return isTrue(program, clicked) && isTrue(program, asked); }))
        << "KELDRA_LOAD_SEED=" << seed << ", round " << &count - answers.data() << ": "
        << kernelMountPoint(clicked).toStdString() << ' ' << kernelMountPoint(asked).toStdString();
  }
  EXPECT_EQ(std::count(answers.begin(), answers.end(), 1), rounds) << "one answer for each";
}
