#include "disks/DiskTest.h"

#include <QFile>
#include <QProcess>
#include <QUrl>

#include "Platform/linux/LinuxPlatform.h"
#include "support/VolumeNews.h"

void DiskTest::SetUp() {
  if (!DiskLab::isHere()) GTEST_SKIP() << "not in a disk laboratory";
  platform = makeLinuxPlatform(productVersion());
  noteVolumeNews(platform->workspaceNotificationCenter(), _observer, events);
  ASSERT_TRUE(waitFor(
      [&] { return platform->diskService().presence() == DiskService::Presence::Answering; }));
}

void DiskTest::TearDown() {
  platform.reset();
  if (!DiskLab::isHere()) return;
  if (!DiskLab::isServiceRunning()) DiskLab::startService();
  for (const QString &disk : _disks) {
    for (int slice = 1; QFile::exists(QStringLiteral("%1p%2").arg(disk).arg(slice)); ++slice) {
      QProcess::execute(
          "sh",
          {"-c",
           QStringLiteral("while umount --lazy %1p%2; do :; done 2>&-").arg(disk).arg(slice)});
    }
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
  DiskLab::format(device, "ext4", label);
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

DissenterStatus DiskTest::answerTo(const std::function<void(DiskService::Completion)> &request) {
  int answers = 0;
  DissenterStatus status = kDAReturnSuccess;
  request([&](const std::optional<Dissenter> &dissenter) {
    ++answers;
    if (dissenter) status = dissenter->status;
  });
  EXPECT_TRUE(waitFor([&] { return answers > 0; })) << "no answer";
  QCoreApplication::processEvents();
  EXPECT_EQ(answers, 1);
  return status;
}

DissenterStatus DiskTest::mount(const QString &name) {
  return answerTo([&](const DiskService::Completion &completion) {
    platform->diskService().mount(name, std::nullopt, completion);
  });
}

DissenterStatus DiskTest::unmount(const QString &name, DiskService::UnmountOption option) {
  return answerTo([&](const DiskService::Completion &completion) {
    platform->diskService().unmount(name, option, completion);
  });
}
