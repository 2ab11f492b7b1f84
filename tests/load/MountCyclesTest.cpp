// The same click again and again must not cost a little more each time.

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTimer>

#include "disks/DiskTest.h"
#include "load/Load.h"
#include "support/Program.h"

namespace {

qint64 entriesIn(const QString &folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// What this process holds, as the kernel counts it.
struct Resources {
  qint64 kilobytes;  // resident
  qint64 descriptors;
  qint64 threads;

  static Resources now() {
    QFile statm("/proc/self/statm");
    EXPECT_TRUE(statm.open(QIODevice::ReadOnly));
    const qint64 pages = statm.readAll().split(' ').value(1).toLongLong();
    return {pages * sysconf(_SC_PAGESIZE) / 1024, entriesIn("/proc/self/fd"),
            entriesIn("/proc/self/task")};
  }

  QString text() const {
    return QStringLiteral("%1 kB, %2 descriptors, %3 threads")
        .arg(kilobytes)
        .arg(descriptors)
        .arg(threads);
  }
};

class MountCycles : public DiskTest {};

}  // namespace

TEST_F(MountCycles, LeaveMemoryDescriptorsAndThreadsFlat) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer keeps what has been freed";
#endif
  const int cycles = loadCount(1000, 30);
  const int warmUp = loadCount(100, 10);
  // The allocator's own unrest; a leak of 2 kB at each click is beyond it.
  constexpr qint64 kMostGrowth = 2048;
  const QString name = nameOf(addSystemPartition("CYCLES"));
  Program program(*platform);

  Resources warm{};
  int cycle = 0;
  int wrong = 0;
  // One cycle at a turn of the event loop, so that what is to be deleted later is.
  QTimer next;
  QObject::connect(&next, &QTimer::timeout, &next, [&] {
    program.click(name);
    wrong += program.title(name) != "umount " + name || mountPointOf(name).isEmpty();
    program.click(name);
    wrong += program.title(name) != "mount " + name || !mountPointOf(name).isEmpty();
    events.clear();
    ++cycle;
    if (cycle == warmUp) warm = Resources::now();
    if (cycle == cycles) QCoreApplication::exit();
  });
  next.start(0);
  QCoreApplication::exec();

  const Resources last = Resources::now();
  printLine(QStringLiteral("%1 cycles of mount and unmount: %2, then %3")
                .arg(cycles)
                .arg(warm.text(), last.text()));
  EXPECT_EQ(wrong, 0);
  EXPECT_LE(last.kilobytes, warm.kilobytes + kMostGrowth);
  EXPECT_LE(last.descriptors, warm.descriptors);
  EXPECT_LE(last.threads, warm.threads);
}
