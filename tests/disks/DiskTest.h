#pragma once

// A test with this machine's real platform and real disks.

#include <gtest/gtest.h>

#include <QStringList>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>

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
  /// Before the test's end, as a hand would, mounted or not.
  void pullDisk(const QString &disk);
  /// Formats a partition and waits until that is known.
  void format(const QString &device, const QString &label);
  /// Both for the usual case: a disk with one ESP. Gives the partition's device.
  QString addSystemPartition(const QString &label);

  /// The BSD name of a device such as "/dev/loop0p1"; empty when it is unknown.
  QString nameOf(const QString &device) const;
  QVariant value(const QString &name, const QString &key) const;
  /// Empty when not mounted.
  QString mountPointOf(const QString &name) const;

  // Waits for the answer. Success is kDAReturnSuccess.
  DissenterStatus mount(const QString &name);
  DissenterStatus unmount(const QString &name,
                          DiskService::UnmountOption option = DiskService::UnmountOption::Default);

  /// As support/VolumeNews.h notes them.
  QStringList events;

  std::unique_ptr<Platform> platform;

 protected:
  /// Of the machine that the program finds itself on; absent for the one that ships.
  virtual std::optional<QString> productVersion() const { return {}; }

 private:
  DissenterStatus answerTo(const std::function<void(DiskService::Completion)> &request);

  QObject _observer;
  QStringList _disks;
};
