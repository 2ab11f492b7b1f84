#include <pwd.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdlib>
#include <utility>

#include "Platform/ThisMachine.h"
#include "Platform/common/MachinePlatform.h"
#include "Platform/common/MediaIcon.h"
#include "Platform/common/QtRunLoop.h"
#include "Platform/common/SettingsDefaults.h"
#include "Platform/common/ShippedFiles.h"
#include "Platform/linux/LinuxDiskService.h"
#include "Platform/linux/LinuxRawDevices.h"
#include "Platform/linux/LinuxVolumeFiles.h"
#include "Platform/linux/VolumeHelper.h"
#include "Platform/linux/XdgLoginItems.h"

using namespace Qt::StringLiterals;

namespace {

QString bootId() {
  QFile file(u"/proc/sys/kernel/random/boot_id"_s);
  return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
}

// A disk's name must be the same for a user and for root on that user's behalf (sudo, pkexec).
QString runtimeFolder() {
  for (const char *variable : {"SUDO_UID", "PKEXEC_UID"}) {
    bool isNumber = false;
    const uint user = qEnvironmentVariable(variable).toUInt(&isNumber);
    const QString folder = u"/run/user/%1"_s.arg(user);
    if (geteuid() == 0 && isNumber && QFileInfo(folder).isDir()) return folder;
  }
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

UnitNumbers sharedUnitNumbers() {
  const QString folder = runtimeFolder();
  const QString file = folder.isEmpty() ? QString() : folder + u"/keldra/units"_s;
  return {BlockDevices(u"/sys/block"_s), UnitFile(file, bootId())};
}

QString settingsFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         u"/keldra/settings.ini"_s;
}

// The disk service mounts below the first of these where the distribution has it, else below the
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
      : _loginItems(XdgLoginItems::ofThisUser(
            [this](const QString &path) { return _volumeFiles.look(path); })),
        _userDefaults(settingsFile()),
        _disks(_systemBus, sharedUnitNumbers(), u"/proc/self/mountinfo"_s, _workspace),
        _rawDevices(_disks),
        _volumeFiles(_disks) {}

  DiskService &diskService() override { return _disks; }
  MediaRegistry &mediaRegistry() override { return _disks; }
  RawDevices &rawDevices() override { return _rawDevices; }
  VolumeFiles &volumeFiles() override { return _volumeFiles; }
  RunLoop &runLoop() override { return _runLoop; }
  SystemFiles &systemFiles() override { return _systemFiles; }
  LoginItems &loginItems() override { return _loginItems; }
  UserDefaults &userDefaults() override { return _userDefaults; }

 private:
  QString volumesFolder() const override { return mountFolderOfUser(); }

  QtRunLoop _runLoop;
  ShippedFiles _systemFiles;
  XdgLoginItems _loginItems;
  SettingsDefaults _userDefaults;
  MessageBus _systemBus{MessageBus::systemAddress()};
  LinuxDiskService _disks;
  LinuxRawDevices _rawDevices;
  LinuxVolumeFiles _volumeFiles;
};

}  // namespace

void prepareProcess(char **) {
  if (const auto status = runAsVolumeHelper()) std::exit(*status);
}

std::unique_ptr<Platform> makePlatform() {
  return std::make_unique<LinuxPlatform>();
}
