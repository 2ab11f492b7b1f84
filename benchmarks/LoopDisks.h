#pragma once

// Eight disks in a disk laboratory, with `partitions` partitions in total. The first partition of
// each disk is an ESP; those on the first two disks have an ext4 file system. The destructor removes
// the disks. Making and removing them blocks; making them throws std::runtime_error on failure.

#include <QStringList>

class LoopDisks {
 public:
  static constexpr int kDisks = 8;

  explicit LoopDisks(int partitions);
  ~LoopDisks();
  LoopDisks(const LoopDisks &) = delete;
  LoopDisks &operator=(const LoopDisks &) = delete;

  /// The partition that can be mounted, "/dev/loop0p1".
  QString mountableDevice() const { return _disks.first() + QStringLiteral("p1"); }
  QString otherMountableDevice() const { return _disks.at(1) + QStringLiteral("p1"); }
  /// A partition without a file system.
  QString emptyDevice() const { return _disks.at(2) + QStringLiteral("p1"); }

 private:
  void create(int number, int partitions);

  QStringList _disks;
};
