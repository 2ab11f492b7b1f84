#pragma once

// A machine that exists only as data, and behaves: it mounts and unmounts, refuses, is slow, loses
// disks.
//
//   SimulatedPlatform platform(machine, std::make_unique<SystemClock>());
//   platform.pull(2);  // disk2 is gone, and whatever was mounted from it
//
// Mount points are real folders below a temporary one, so that the program can look into them.
// Everything that the machine does is announced from the event loop, in order, before the request
// that caused it is answered.

#include <QObject>
#include <QTemporaryDir>
#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"
#include "Platform/common/FileSystemFiles.h"
#include "Platform/common/QtRunLoop.h"
#include "Platform/simulated/Machine.h"
#include "Platform/simulated/SimulatedUser.h"

/// The system files that ship, with a product version of the machine's own.
class SimulatedSystemFiles final : public SystemFiles {
 public:
  SimulatedSystemFiles(const QString &root, QString productVersion);

  bool exists(const QString &path) const override;
  QVariantMap propertyList(const QString &path) const override;
  QImage image(const QString &path) const override;

 private:
  FileSystemFiles _shipped;
  QString _productVersion;
};

class SimulatedPlatform final : public Platform, public DiskService, public MediaRegistry {
 public:
  SimulatedPlatform(Machine machine, std::unique_ptr<Clock> clock);
  ~SimulatedPlatform() override;

  // The roles.
  DiskService &diskService() override { return *this; }
  MediaRegistry &mediaRegistry() override { return *this; }
  RunLoop &runLoop() override { return _runLoop; }
  Clock &clock() override { return *_clock; }
  SystemFiles &systemFiles() override { return _systemFiles; }
  SimulatedLoginItems &loginItems() override { return _loginItems; }
  SimulatedDefaults &userDefaults() override { return _userDefaults; }
  QString volumesFolder() const override { return _volumes.path(); }
  NotificationCenter &workspaceNotificationCenter() override { return _workspace; }

  Presence presence() const override { return _machine.presence; }
  std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const override;
  std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const override;
  void mount(const QString &bsdName, const std::optional<QString> &path,
             Completion completion) override;
  void unmount(const QString &bsdName, UnmountOption option, Completion completion) override;
  QStringList mediaNames() const override;
  QStringList mediaNamesOnDisk(const QString &wholeDisk) const override;

  // What happens to the machine from outside. Names that are not there are ignored.
  void plug(const SimulatedDisk &disk);
  void pull(int unit);
  void mountFromOutside(const QString &bsdName);
  void unmountFromOutside(const QString &bsdName);
  void rename(const QString &bsdName, const QString &volumeName);
  void setPresence(Presence presence);
  /// How later requests for this partition are answered; an absent status lifts the refusal.
  void setRefusals(const QString &bsdName, std::optional<DAReturn> mount,
                   std::optional<DAReturn> unmount);

 private:
  struct Found {
    SimulatedDisk *disk = nullptr;
    SimulatedPartition *partition = nullptr;
  };

  Found find(const QString &bsdName);
  std::optional<Dissenter> tryToMount(const QString &bsdName, const std::optional<QString> &path);
  std::optional<Dissenter> tryToUnmount(const QString &bsdName, UnmountOption option);
  void putAt(SimulatedPartition &partition, const QString &mountPoint);
  void takeAway(SimulatedPartition &partition);
  QString freeFolder(const SimulatedPartition &partition) const;
  void announce(const QString &name, const QString &path = {});
  /// Calls `answer` from the event loop once the partition's delay is over.
  void answerLater(const QString &bsdName, std::function<void()> answer);

  Machine _machine;
  QTemporaryDir _volumes;
  std::unique_ptr<Clock> _clock;
  SimulatedSystemFiles _systemFiles;
  SimulatedLoginItems _loginItems;
  SimulatedDefaults _userDefaults;
  QtRunLoop _runLoop;
  NotificationCenter _workspace;
  QObject _context;  // whatever is under way ends with it
};
