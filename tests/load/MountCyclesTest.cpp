// Repeated clicks must not use more and more memory, descriptors or threads, nor wait for another volume that does not
// answer for some of that time.

#include <unistd.h>

#include <QDir>
#include <array>
#include <optional>

#include "disks/DiskTest.h"
#include "load/Load.h"
#include "support/EventGap.h"
#include "support/Files.h"
#include "support/MuteVolume.h"
#include "support/Program.h"

namespace {

qint64 entriesIn(const QString &folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// Resources of this process as the kernel counts them: kilobytes of memory, descriptors, threads.
std::array<qint64, 3> resources() {
  const qint64 pages = contentOf("/proc/self/statm").split(' ').value(1).toLongLong();
  return {pages * sysconf(_SC_PAGESIZE) / 1024, entriesIn("/proc/self/fd"),
          entriesIn("/proc/self/task")};
}

class MountCycles : public DiskTest {};

}  // namespace

TEST_F(MountCycles, LeakNoMemoryDescriptorsOrThreads) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer keeps what has been freed";
#endif
  const int cycles = loadCount(1000, 30);
  const int warmUp = loadCount(100, 10);
  // The allocator's own variation; a leak of 2 kB for each click exceeds it.
  constexpr qint64 kMostGrowth = 2048;
  const QString disk = addDisk("disk", "label: gpt\ntype=U, size=24M\ntype=U, size=24M\n", 2);
  format(disk + "p1", "CYCLES");
  format(disk + "p2", "HANGS");
  const QString name = nameOf(disk + "p1");
  const QString hanging = nameOf(disk + "p2");
  ASSERT_TRUE(mount(hanging));
  Program program(*platform);

  std::array<qint64, 3> warm{};
  std::optional<MuteVolume> silence;
  const EventGap gap;
  for (int cycle = 1; cycle <= cycles; ++cycle) {
    program.click(name);
    ASSERT_EQ(program.title(name), "umount " + name);
    program.click(name);
    ASSERT_EQ(program.title(name), "mount " + name);
    events.clear();
    // As the program's event loop does between two events.
    Program::settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (cycle == warmUp) warm = resources();
    if (cycle == cycles / 2) silence.emplace(mountPointOf(hanging));
    if (cycle == cycles * 3 / 4) silence.reset();
  }
  printLongestGap(gap.longest());

  const auto [kilobytes, descriptors, threads] = resources();
  EXPECT_LE(kilobytes, warm[0] + kMostGrowth);
  EXPECT_LE(descriptors, warm[1]);
  EXPECT_LE(threads, warm[2]);
}
