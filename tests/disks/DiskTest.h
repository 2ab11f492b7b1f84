#pragma once

// A test with this machine's real platform and real disks.

#include <gtest/gtest.h>

#include <QStringList>
#include <QTest>
#include <functional>
#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"
#include "disks/DiskLab.h"

class DiskTest : public testing::Test {
 public:
  void SetUp() override;
  void TearDown() override;

  /// Serves the event loop until the condition holds; false if it takes too long.
  static bool waitFor(const std::function<bool()> &condition) {
    return QTest::qWaitFor(condition, 10000);
  }

  /// A disk with this table, which is removed after the test. Waits until all its partitions are
  /// known.
  QString addDisk(const QString &name, const QByteArray &table, int partitions);
  /// Removes the disk before the end of the test, mounted or not.
  void pullDisk(const QString &disk);
  /// Formats a partition and waits until the platform reports it.
  void format(const QString &device, const QString &label);
  /// Both for the usual case: a disk with one ESP. Returns the partition's device.
  QString addSystemPartition(const QString &label);

  /// The BSD name of a device such as "/dev/loop0p1"; empty when it is unknown.
  QString nameOf(const QString &device) const;
  QVariant value(const QString &name, const QString &key) const;
  /// Empty when not mounted.
  QString mountPointOf(const QString &name) const;

  // As a click does: these wait for the answer.
  bool mount(const QString &name);
  bool unmount(const QString &name, bool byForce = false);

  /// As `noteVolumeNews` records them.
  QStringList events;

  std::unique_ptr<Platform> platform;

 private:
  QObject _observer;
  QStringList _disks;
};
