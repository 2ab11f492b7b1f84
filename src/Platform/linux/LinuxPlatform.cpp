#include "Platform/ThisMachine.h"

#include <pwd.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "Platform/common/FileSystemFiles.h"
#include "Platform/common/MachinePlatform.h"
#include "Platform/common/MediaIcon.h"
#include "Platform/common/QtRunLoop.h"
#include "Platform/common/SettingsDefaults.h"
#include "Platform/common/SystemFilesRoot.h"
#include "Platform/linux/LinuxDiskService.h"
#include "Platform/linux/LinuxRawDevices.h"
#include "Platform/linux/VolumeUsers.h"
#include "Platform/linux/XdgLoginItems.h"

using namespace Qt::StringLiterals;

namespace {

QString bootId() {
  QFile file(u"/proc/sys/kernel/random/boot_id"_s);
  return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
}

UnitNumbers sharedUnitNumbers() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  const QString file = folder.isEmpty() ? QString() : folder + u"/keldra/units"_s;
  return {BlockDevices(u"/sys/block"_s), UnitFile(file, bootId())};
}

QString settingsFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         u"/keldra/settings.ini"_s;
}

// The disk service mounts below the first of these on distributions that have it, else below the
// second.
QString mountFolderOfUser() {
  const passwd *entry = getpwuid(getuid());
  const QString user =
      entry == nullptr ? QString::number(getuid()) : QString::fromLocal8Bit(entry->pw_name);
  const QString folder = u"/run/media/"_s + user;
  return QFileInfo(folder).isDir() ? folder : u"/media/"_s + user;
}

class LinuxPlatform final : public MachinePlatform {
 public:
  LinuxPlatform()
      : _systemFiles(systemFilesRoot()),
        _loginItems(XdgLoginItems::ofThisUser()),
        _userDefaults(settingsFile()),
        _disks(QDBusConnection::systemBus(), sharedUnitNumbers(), u"/proc/self/mountinfo"_s,
               _workspace),
        _rawDevices(_disks) {}

  DiskService &diskService() override { return _disks; }
  MediaRegistry &mediaRegistry() override { return _disks; }
  RawDevices &rawDevices() override { return _rawDevices; }
  RunLoop &runLoop() override { return _runLoop; }
  SystemFiles &systemFiles() override { return _systemFiles; }
  LoginItems &loginItems() override { return _loginItems; }
  UserDefaults &userDefaults() override { return _userDefaults; }
  std::optional<QString> driverBundle(const QString &identifier) const override {
    return shippedDriverBundle(_systemFiles, identifier);
  }
  QStringList processesUsing(const QString &mountPoint) const override {
    return processesUsingVolume(mountPoint);
  }
  QString volumesFolder() const override { return mountFolderOfUser(); }
  QString legacyVolumesFolder() const override { return u"/Volumes"_s; }

 private:
  QtRunLoop _runLoop;
  FileSystemFiles _systemFiles;
  XdgLoginItems _loginItems;
  SettingsDefaults _userDefaults;
  LinuxDiskService _disks;
  LinuxRawDevices _rawDevices;
};

}  // namespace

std::unique_ptr<Platform> makePlatform() {
  return std::make_unique<LinuxPlatform>();
}
