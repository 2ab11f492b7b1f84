#include "disks/DiskTest.h"

#include <QFile>
#include <QProcess>
#include <QUrl>

#include "DiskArbitrator/DiskArbitrator.h"
#include "Platform/ThisMachine.h"
#include "support/VolumeNews.h"

void DiskTest::SetUp() {
  if (!DiskLab::isHere()) GTEST_SKIP() << "not in a disk laboratory";
  platform = makePlatform();
  noteVolumeNews(platform->workspaceNotificationCenter(), _observer, events);
  ASSERT_TRUE(waitFor(
      [&] { return platform->diskService().presence() == DiskService::Presence::Answering; }));
}

void DiskTest::TearDown() {
  platform.reset();
  if (!DiskLab::isHere()) return;
  const bool isServiceRunning = QFile::exists(DiskLab::file("udisksd.pid"));
  if (!isServiceRunning) DiskLab::run("disk-service", {"start", "udisksd"});
  for (const QString &disk : _disks) {
    const QString unmountAll = "for part in $0p*; do while umount -l $part; do :; done; done 2>&-";
    QProcess::execute("sh", {"-c", unmountAll, disk});
    DiskLab::pull(disk);
  }
}

QString DiskTest::addDisk(const QString &name, const QByteArray &table, int partitions) {
  const QString disk = DiskLab::createDisk(name, 64, table);
  _disks << disk;
  EXPECT_TRUE(waitFor([&] {
    return platform->mediaRegistry().mediaNamesOnDisk(nameOf(disk)).size() == partitions + 1;
  })) << "not all partitions of "
      << disk.toStdString() << " became known";
  return disk;
}

void DiskTest::pullDisk(const QString &disk) {
  _disks.removeOne(disk);
  DiskLab::pull(disk);
}

void DiskTest::format(const QString &device, const QString &label) {
  DiskLab::run("loop-disk", {"format", device, "ext4", label});
  EXPECT_TRUE(
      waitFor([&] { return value(nameOf(device), kDADiskDescriptionVolumeKindKey) == "ext4"; }));
}

QString DiskTest::addSystemPartition(const QString &label) {
  const QString device = addDisk("disk", "label: gpt\ntype=U, size=32M\n", 1) + "p1";
  format(device, label);
  return device;
}

QString DiskTest::nameOf(const QString &device) const {
  const QStringList names = platform->mediaRegistry().mediaNames();
  for (const QString &name : names) {
    if (value(name, kDiskDescriptionDeviceNodeKey) == device) return name;
  }
  return {};
}

QVariant DiskTest::value(const QString &name, const QString &key) const {
  return platform->diskService().descriptionOfMedia(name).value_or(DiskDescription()).value(key);
}

QString DiskTest::mountPointOf(const QString &name) const {
  return value(name, kDADiskDescriptionVolumePathKey).toUrl().toLocalFile();
}

bool DiskTest::mount(const QString &name) {
  const CurrentPlatform current(*platform);
  return DiskArbitrator::mountPartition(name, std::nullopt);
}

bool DiskTest::unmount(const QString &name, bool byForce) {
  const CurrentPlatform current(*platform);
  return DiskArbitrator::umountPartition(name, byForce);
}
