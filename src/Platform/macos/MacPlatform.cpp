#include "Platform/macos/MacPlatform.h"

#include "Platform/ThisMachine.h"
#include "Platform/common/MachinePlatform.h"
#include "Platform/macos/MacDiskService.h"
#include "Platform/macos/MacLoginItems.h"
#include "Platform/macos/MacMediaRegistry.h"
#include "Platform/macos/MacRawDevices.h"
#include "Platform/macos/MacRunLoop.h"
#include "Platform/macos/MacSystemFiles.h"
#include "Platform/macos/MacUserDefaults.h"
#include "Platform/macos/VolumeUsers.h"
#include "Platform/macos/VolumeWatcher.h"

using namespace Qt::StringLiterals;

namespace {

class MacPlatform final : public MachinePlatform {
 public:
  explicit MacPlatform(const QString &root) : _systemFiles(root) {
    postOn(&VolumeWatcher::mounted, kNSWorkspaceDidMountNotification);
    postOn(&VolumeWatcher::unmounted, kNSWorkspaceDidUnmountNotification);
    postOn(&VolumeWatcher::renamed, kNSWorkspaceDidRenameVolumeNotification);
    QObject::connect(&_watcher, &VolumeWatcher::changed, [this] {
      _workspace.post({kNSWorkspaceDidMountNotification, this});
    });
  }

  DiskService &diskService() override { return _disks; }
  MediaRegistry &mediaRegistry() override { return _media; }
  RawDevices &rawDevices() override { return _rawDevices; }
  RunLoop &runLoop() override { return _runLoop; }
  SystemFiles &systemFiles() override { return _systemFiles; }
  LoginItems &loginItems() override { return _loginItems; }
  UserDefaults &userDefaults() override { return _userDefaults; }
  std::optional<QString> driverBundle(const QString &identifier) const override {
    return locationOfDriver(identifier);
  }
  QStringList processesUsing(const QString &mountPoint) const override {
    return processesUsingVolume(mountPoint);
  }
  QString volumesFolder() const override { return u"/Volumes"_s; }
  QString legacyVolumesFolder() const override { return u"/Volumes"_s; }

 private:
  void postOn(void (VolumeWatcher::*news)(const QString &), const QString &name) {
    QObject::connect(&_watcher, news, [this, name](const QString &path) {
      _workspace.post({name, this, {{kNSDevicePathKey, path}}});
    });
  }

  MacRunLoop _runLoop;
  MacSystemFiles _systemFiles;
  MacLoginItems _loginItems;
  MacUserDefaults _userDefaults;
  MacDiskService _disks;
  MacMediaRegistry _media;
  MacRawDevices _rawDevices;
  VolumeWatcher _watcher;
};

}  // namespace

std::unique_ptr<Platform> makeMacPlatform(const QString &root) {
  return std::make_unique<MacPlatform>(root);
}

std::unique_ptr<Platform> makePlatform() {
  return makeMacPlatform({});
}
