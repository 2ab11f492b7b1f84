#include "Platform/macos/MacPlatform.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QWindow>
#include <utility>

#include "Platform/ThisMachine.h"
#include "Platform/common/DirectVolumeFiles.h"
#include "Platform/common/MachinePlatform.h"
#include "Platform/macos/MacDiskService.h"
#include "Platform/macos/MacLoginItems.h"
#include "Platform/macos/MacMediaRegistry.h"
#include "Platform/macos/MacRawDevices.h"
#include "Platform/macos/MacRunLoop.h"
#include "Platform/macos/MacSystemFiles.h"
#include "Platform/macos/MacUserDefaults.h"
#include "Platform/macos/MacVolumeUsers.h"
#include "Platform/macos/VolumeWatcher.h"

using namespace Qt::StringLiterals;

namespace {

class MacVolumeFiles final : public DirectVolumeFiles {
 public:
  /// `mayRead` says whether the file at a path may be read now.
  explicit MacVolumeFiles(std::function<bool(const QString &)> mayRead)
      : _mayRead(std::move(mayRead)) {}

  std::optional<QImage> image(const QString &path) override {
    return _mayRead(path) ? DirectVolumeFiles::image(path) : std::nullopt;
  }
  void findProcessesUsing(const QString &mountPoint,
                          std::function<void(const QStringList &)> answer) override {
    answer(programsUsingVolume(mountPoint));
  }

 private:
  std::function<bool(const QString &)> _mayRead;
};

class MacPlatform final : public MachinePlatform {
 public:
  explicit MacPlatform(const QString &root) : _systemFiles(root), _disks(root) {
    postOn(&VolumeWatcher::mounted, kNSWorkspaceDidMountNotification);
    postOn(&VolumeWatcher::unmounted, kNSWorkspaceDidUnmountNotification);
    postOn(&VolumeWatcher::renamed, kNSWorkspaceDidRenameVolumeNotification);
    QObject::connect(&_watcher, &VolumeWatcher::changed, [this] { postChange(); });
    QObject::connect(&_watcher, &VolumeWatcher::serviceStarted,
                     [this] { _disks.noteServiceStart(); });
    readForeignIconsOnceAWindowIsOpen();
  }

  DiskService &diskService() override { return _disks; }
  MediaRegistry &mediaRegistry() override { return _media; }
  RawDevices &rawDevices() override { return _rawDevices; }
  VolumeFiles &volumeFiles() override { return _volumeFiles; }
  RunLoop &runLoop() override { return _runLoop; }
  SystemFiles &systemFiles() override { return _systemFiles; }
  LoginItems &loginItems() override { return _loginItems; }
  UserDefaults &userDefaults() override { return _userDefaults; }

 private:
  void postOn(void (VolumeWatcher::*news)(const QString &), const QString &name) {
    QObject::connect(&_watcher, news, [this, name](const QString &path) {
      _workspace.post({name, this, {{kNSDevicePathKey, path}}});
    });
  }

  void postChange() { _workspace.post({kNSWorkspaceDidMountNotification, this}); }

  // The system asks the user before a program first reads removable or network volumes. So these
  // are read only when one of the program's windows is in front.
  void readForeignIconsOnceAWindowIsOpen() {
    _readsForeignIcons = qobject_cast<QGuiApplication *>(qApp) == nullptr;
    if (_readsForeignIcons) return;
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &_watcher,
                     [this](QWindow *now) {
                       if (now != nullptr && !std::exchange(_readsForeignIcons, true)) postChange();
                     });
  }

  bool isOnInternalDisk(const QString &path) const {
    const auto volume = _disks.descriptionOfVolume(QFileInfo(path).path());
    return volume && volume->value(disk_service::kDADiskDescriptionDeviceInternalKey).toBool();
  }

  MacRunLoop _runLoop;
  MacSystemFiles _systemFiles;
  MacLoginItems _loginItems;
  MacUserDefaults _userDefaults;
  MacDiskService _disks;
  MacMediaRegistry _media;
  MacRawDevices _rawDevices;
  MacVolumeFiles _volumeFiles{
      [this](const QString &path) { return _readsForeignIcons || isOnInternalDisk(path); }};
  VolumeWatcher _watcher;
  bool _readsForeignIcons = false;
};

}  // namespace

std::unique_ptr<Platform> makeMacPlatform(const QString &root) {
  return std::make_unique<MacPlatform>(root);
}

std::unique_ptr<Platform> makePlatform() {
  return makeMacPlatform({});
}
