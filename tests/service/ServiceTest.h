#pragma once

// A test with the real backend on a private bus, and a disk service that the test controls.

#include <gtest/gtest.h>

#include <QTest>
#include <functional>
#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Platform/linux/LinuxDiskService.h"
#include "service/MockDiskService.h"
#include "service/PrivateBus.h"

/// The statuses with which a request was completed; exactly one if the backend is correct.
using Answers = std::shared_ptr<QList<DissenterStatus>>;

class ServiceTest : public testing::Test {
 public:
  ServiceTest();
  ~ServiceTest() override;

  static bool waitFor(const std::function<bool()> &condition) {
    return QTest::qWaitFor(condition, 10000);
  }
  /// Waits until the service and the program have received and handled all of each other's
  /// messages.
  void settle();

  /// Makes the backend: the program from the service's point of view.
  void startProgram();
  /// Starts the service and waits until the backend has its tree.
  void start();

  QStringList names() const { return disks->mediaNames(); }
  QVariant value(const QString &name, const QString &key) const;
  /// The descriptions of all disks.
  QList<DiskDescription> everything() const;

  Answers mount(const QString &name);
  Answers unmount(const QString &name,
                  DiskService::UnmountOption option = DiskService::UnmountOption::Default);

  PrivateBus bus;
  MockDiskService service{bus.address()};
  // On disk0: an ESP, and a partition that the kernel has mounted at `mountPoint`.
  const QString disk = service.addDisk("sda", 16);
  const QString esp = service.addPartition(disk, 1, 17);
  const QString data = service.addPartition(disk, 2, 18);
  const QTemporaryDir folder;
  const QString mountPoint = folder.path();

  MessageBus systemBus{bus.address()};
  NotificationCenter workspace;
  std::unique_ptr<LinuxDiskService> disks;
  /// As `noteVolumeNews` records them.
  QStringList events;

 private:
  static DiskService::Completion noteIn(const Answers &answers);

  QObject _observer;
};
