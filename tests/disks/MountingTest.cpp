// Mounts and unmounts through the real service.

#include <unistd.h>

#include <QFile>
#include <QProcess>

#include "disks/DiskTest.h"

using UnmountOption = DiskService::UnmountOption;

class Mounting : public DiskTest {};

TEST_F(Mounting, IsToldBeforeTheRequestIsAnswered) {
  const QString name = nameOf(addSystemPartition("Ä b Старт"));
  DissenterStatus status = kDAReturnSuccess;
  platform->diskService().mount(name, "/mnt",
                                [&](const auto &dissenter) { status = dissenter->status; });
  EXPECT_EQ(status, kDAReturnUnsupported) << "the service chooses the place";
  EXPECT_EQ(mount(name), kDAReturnSuccess);
  const QString path = platform->volumesFolder() + "/Ä b Старт";
  EXPECT_EQ(volumeEvents(), QStringList{"+" + path});
  EXPECT_EQ(mountPointOf(name), path);
  EXPECT_EQ(unmount(name), kDAReturnSuccess);
  EXPECT_EQ(volumeEvents(), (QStringList{"+" + path, "-" + path}));
}

TEST_F(Mounting, UndoneByForceLosesNothing) {
  const QString name = nameOf(addSystemPartition("BUSY"));
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QByteArray text = "what was written before the unmount is on the disk after it";
  QFile file(mountPointOf(name) + "/file");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
  ASSERT_TRUE(file.flush());
  EXPECT_EQ(platform->processesUsing(mountPointOf(name)),
            QStringList(QString("keldra-disk-tes (%1)").arg(getpid())));
  EXPECT_EQ(unmount(name, UnmountOption::Force), kDAReturnSuccess);
  QFile image(DiskLab::imageFile("disk"));
  ASSERT_TRUE(image.open(QIODevice::ReadOnly));
  EXPECT_TRUE(image.readAll().contains(text));
}

TEST_F(Mounting, UndoneByForceIsForgottenWithThePlatform) {
  const QString device = addSystemPartition("FORGOTTEN");
  ASSERT_EQ(mount(nameOf(device)), kDAReturnSuccess);
  const QString path = mountPointOf(nameOf(device));
  bool isAnswered = false;
  platform->diskService().unmount(nameOf(device), UnmountOption::Force,
                                  [&](const auto &) { isAnswered = true; });
  startPlatform();
  ASSERT_TRUE(waitForPresence(DiskService::Presence::Answering));
  EXPECT_TRUE(waitFor([&] { return mountPointOf(nameOf(device)) == path; }));
  EXPECT_FALSE(isAnswered);
}

TEST_F(Mounting, OfABtrfsSubvolumeIsKnownThoughItHasNoDeviceNumber) {
  const QString disk = DiskLab::createDisk("tree", 256);
  QProcess make;
  make.start("mkfs.btrfs", {"--quiet", "--label", "TREE", disk});
  if (!make.waitForFinished() || make.exitCode() != 0) {
    DiskLab::remove(disk);
    GTEST_SKIP() << "no btrfs here";
  }
  DiskLab::run("udevadm", {"trigger", "--action=change", "--settle", disk});
  EXPECT_TRUE(
      waitFor([&] { return value(nameOf(disk), kDADiskDescriptionVolumeKindKey) == "btrfs"; }));
  const QString name = nameOf(disk);
  EXPECT_EQ(mount(name), kDAReturnSuccess);
  EXPECT_EQ(mountPointOf(name), platform->volumesFolder() + "/TREE");
  EXPECT_EQ(unmount(name), kDAReturnSuccess);
  EXPECT_EQ(mountPointOf(name), "");
  DiskLab::remove(disk);
}

// The lazy loop device of mount(8) goes away with its last mount, in the middle of the unmount.
TEST_F(Mounting, OfADeviceThatEndsWithItCanBeUndone) {
  const QString image = DiskLab::imageFile("lazy");
  const QString folder = DiskLab::makeFolder("lazy");
  DiskLab::run("truncate", {"--size", "16M", image});
  DiskLab::run("mkfs.ext4", {"-q", "-F", image});
  DiskLab::run("mount", {"-o", "loop", image, folder});
  ASSERT_TRUE(waitFor([&] { return volumeEvents() == QStringList{"+" + folder}; }));
  const auto volume = platform->diskService().descriptionOfVolume(folder);
  ASSERT_TRUE(volume);
  const QString name = volume->value(kDADiskDescriptionMediaBSDNameKey).toString();
  EXPECT_EQ(value(name, kDADiskDescriptionMediaNameKey), "lazy.img");
  EXPECT_EQ(unmount(name), kDAReturnSuccess);
  EXPECT_TRUE(waitFor([&] { return !platform->mediaRegistry().mediaNames().contains(name); }));
  EXPECT_EQ(volumeEvents(), (QStringList{"+" + folder, "-" + folder}));
}

// udev is told that the device was removed; the kernel goes on showing the mount.
TEST_F(Mounting, OfAPulledDiskIsOverThoughTheKernelStillShowsIt) {
  const QString device = addSystemPartition("STALE");
  const QString name = nameOf(device);
  ASSERT_EQ(mount(name), kDAReturnSuccess);
  const QString path = mountPointOf(name);
  DiskLab::stopService();
  ASSERT_TRUE(waitForPresence(DiskService::Presence::Absent));
  DiskLab::startService();
  ASSERT_TRUE(waitFor([&] { return nameOf(device) == name; }));
  events.clear();
  const QString other = DiskLab::makeFolder("second");
  DiskLab::run("mount", {"--bind", path, other});
  ASSERT_TRUE(waitFor([&] { return volumeEvents() == QStringList{"+" + other}; }));
  DiskLab::run("udevadm", {"trigger", "--action=remove", "--settle", device});
  ASSERT_TRUE(waitFor([&] { return nameOf(device).isEmpty(); }));
  EXPECT_TRUE(waitFor([&] { return volumeEvents().size() == 3; }));
  EXPECT_EQ(volumeEvents().mid(1), (QStringList{"-" + path, "-" + other}));
  EXPECT_EQ(platform->diskService().descriptionOfVolume(other), std::nullopt);
}

TEST_F(Mounting, IsTrueAlsoWhileNoEventLoopTurns) {
  const QString device = addSystemPartition("TRUTH");
  const QString name = nameOf(device);
  const QString folder = DiskLab::makeFolder("folder with blank");
  events.clear();
  for (int i = 0; i < 3; ++i) {
    DiskLab::run("mount", {device, folder});
    EXPECT_EQ(mountPointOf(name), folder);
    DiskLab::run("umount", {folder});
    EXPECT_EQ(mountPointOf(name), "");
  }
  EXPECT_EQ(events, QStringList{}) << "questions post nothing";
}

TEST_F(Mounting, IsRefusedToAnotherUser) {
  const QString name = nameOf(addSystemPartition("OTHER"));
  const QString program = qEnvironmentVariable("KELDRA_LAB") + "/tmp/another-user";
  ASSERT_TRUE(QFile::copy(QCoreApplication::applicationFilePath(), program));
  const QString runtimeFolder = qEnvironmentVariable("KELDRA_LAB") + "/tmp/runtime";
  DiskLab::run("install", {"-d", "-o65534", "-g65534", "-m700", runtimeFolder});
  QProcess process;
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("XDG_RUNTIME_DIR", runtimeFolder);
  environment.insert("KELDRA_TEST_DEVICE", value(name, kDiskDescriptionDeviceNodeKey).toString());
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups", program,
                            "--gtest_filter=AnotherUser.*"});
  ASSERT_TRUE(process.waitForFinished());
  EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
  EXPECT_EQ(mountPointOf(name), "");
}

// Runs only inside the test above.
class AnotherUser : public DiskTest {};

TEST_F(AnotherUser, MayNotMount) {
  if (getuid() == 0) GTEST_SKIP() << "this user is not another one";
  const QString device = qEnvironmentVariable("KELDRA_TEST_DEVICE");
  ASSERT_TRUE(waitFor([&] { return !nameOf(device).isEmpty(); }));
  EXPECT_EQ(mount(nameOf(device)), kDAReturnNotPrivileged);
}
