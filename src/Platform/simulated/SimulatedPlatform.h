#pragma once

// A simulated machine, which exists only as data: it mounts and unmounts, refuses, is slow, and
// loses disks.
//
//   SimulatedPlatform platform(machine, std::make_unique<SystemClock>());
//   platform.pull(2);  // disk2 is gone, and whatever was mounted from it
//
// Mount points are real folders below a temporary folder, so that the program can read them; only "/" is the
// real machine's own. All changes are announced from the event loop, in order, before the request that caused
// them is answered.

#include <QCoreApplication>
#include <QHash>
#include <QObject>
#include <QTemporaryDir>
#include <map>
#include <memory>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"
#include "Platform/common/DirectVolumeFiles.h"
#include "Platform/common/QtRunLoop.h"
#include "Platform/common/ShippedFiles.h"
#include "Platform/simulated/Machine.h"
#include "Platform/simulated/SimulatedUser.h"

/// Files below the machine's own folder, and the processes that its machine file names.
class SimulatedVolumeFiles final : public DirectVolumeFiles {
 public:
  /// `machine` must outlive this object.
  explicit SimulatedVolumeFiles(const Machine &machine) : _machine(machine) {}

  void findProcessesUsing(const QString &mountPoint,
                          std::function<void(const QStringList &)> answer) override;

 private:
  const Machine &_machine;
};

class SimulatedPlatform final : public Platform,
                                public DiskService,
                                public MediaRegistry,
                                public RawDevices,
                                public SystemPrograms {
 public:
  /// `moment` is how long the run loop serves events at a time; 20 ms on a real machine. A test has
  /// its own clock and need not wait.
  SimulatedPlatform(Machine machine, std::unique_ptr<Clock> clock,
                    std::chrono::milliseconds moment = QtRunLoop::kMoment);
  ~SimulatedPlatform() override;

  // The roles of the seam.
  DiskService &diskService() override { return *this; }
  MediaRegistry &mediaRegistry() override { return *this; }
  RawDevices &rawDevices() override { return *this; }
  VolumeFiles &volumeFiles() override { return _volumeFiles; }
  RunLoop &runLoop() override { return _runLoop; }
  Clock &clock() override { return *_clock; }
  SystemFiles &systemFiles() override { return _systemFiles; }
  SystemPrograms &systemPrograms() override { return *this; }
  SimulatedLoginItems &loginItems() override { return _loginItems; }
  SimulatedDefaults &userDefaults() override { return _userDefaults; }
  Folders folders() const override {
    return {volumesFolder(), volumesFolder(), _applicationSupport.path()};
  }
  QString volumesFolder() const { return _root.filePath(QStringLiteral("Volumes")); }
  NotificationCenter &workspaceNotificationCenter() override { return _workspace; }

  Presence presence() const override { return _machine.presence; }
  QString name() const override {
    return QCoreApplication::translate("SimulatedPlatform", "a simulated machine");
  }
  std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const override;
  std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const override;
  void mount(const QString &bsdName, const std::optional<QString> &path,
             Completion completion) override;
  void unmount(const QString &bsdName, UnmountOption option, Completion completion) override;
  QStringList mediaNames() const override;
  QStringList mediaNamesOnDisk(const QString &wholeDisk) const override;
  bool isPrivileged() const override { return _machine.isPrivileged; }
  std::optional<quint32> fileSystemSubtype(const QString &mountPoint) const override;
  std::optional<quint32> physicalBlockSize(const QString &bsdName) const override;
  std::optional<quint32> logicalBlockSize(const QString &bsdName) const override;
  /// Runs /bin/df, /sbin/mount and /sbin/umount, the last for forced unmounts only. What makes the
  /// service refuse a mount makes the program fail.
  ProgramRun run(const QString &path, const QStringList &arguments) override;

  /// The machine as it is now, without pulled disks.
  const Machine &machine() const { return _machine; }
  /// Each disk as it was when pulled, with its volumes unmounted.
  const QVector<SimulatedDisk> &pulledDisks() const { return _pulled; }

  // Events from outside. Unknown names are ignored, and so is a disk whose unit exists already.
  void plug(const SimulatedDisk &disk);
  /// Pending requests for the disk are answered with "not found".
  void pull(int unit);
  /// Plugs a pulled disk in again.
  void plugBack(int unit);
  void mountFromOutside(const QString &bsdName);
  void unmountFromOutside(const QString &bsdName);
  void rename(const QString &bsdName, const QString &volumeName);
  /// When the service stops answering, pending requests are answered with "not ready".
  void setPresence(Presence presence);

  // The answers to later requests for a partition; absent values remove earlier settings.
  void setRefusals(const QString &bsdName, std::optional<DissenterStatus> mount,
                   std::optional<DissenterStatus> unmount);
  void setDelay(const QString &bsdName, std::chrono::milliseconds delay);
  void setMishap(const QString &bsdName, std::optional<Mishap> mishap);

 private:
  static constexpr qsizetype kWholeDisk = -1;
  struct Place {
    qsizetype disk;
    qsizetype partition;
  };
  struct Found {
    SimulatedDisk *disk = nullptr;
    SimulatedPartition *partition = nullptr;
  };
  struct Request {
    std::function<std::optional<Dissenter>()> attempt;
    Completion completion;
    QString bsdName;
    std::optional<Mishap> mishap = {};
  };

  Found find(const QString &bsdName);
  std::optional<Place> placeOfVolume(const QString &mountPoint) const;
  /// Null for a partition.
  const SimulatedDisk *wholeDisk(const QString &bsdName) const;
  /// Call it after disks have come or gone.
  void learnPlaces();

  std::optional<Dissenter> tryToMount(const QString &bsdName, const std::optional<QString> &path);
  std::optional<Dissenter> tryToUnmount(const QString &bsdName, UnmountOption option);
  /// Answers the request from the event loop once the partition's delay is over.
  void take(Request request);
  /// Makes the mishap of a request for this disk happen, now or while the request is pending.
  void strike(Mishap mishap, int unit, std::chrono::milliseconds delay);
  void answer(int number);
  /// Answers the requests that match before their delay is over.
  void endRequests(DissenterStatus status, const std::function<bool(const Request &)> &concerns);

  QByteArray diskFree() const;
  bool mountByProgram(const QStringList &arguments);
  bool unmountByProgram(const QStringList &arguments);

  void putVolumes(SimulatedDisk &disk);
  void putAt(SimulatedPartition &partition, const QString &mountPoint);
  void takeAway(SimulatedPartition &partition);
  /// Where the machine has the mount point: below its own folder, except for "/". A name without "/" is a
  /// folder in the volumes folder.
  QString placeFor(const QString &mountPoint) const;
  /// Whether the path lies in the machine's own folder.
  bool isOurs(const QString &path) const;
  QString freeFolder(const SimulatedPartition &partition) const;
  void announce(const QString &name, const QString &path = {});
  /// Calls `action` in a later turn of the event loop, in the order of the calls.
  void later(std::function<void()> action);

  Machine _machine;
  QVector<SimulatedDisk> _pulled;
  QHash<QString, Place> _places;  // of every BSD name
  std::map<int, Request> _requests;
  int _lastRequest = 0;
  QTemporaryDir _root;
  QTemporaryDir _applicationSupport;
  std::unique_ptr<Clock> _clock;
  ShippedFiles _systemFiles;
  SimulatedVolumeFiles _volumeFiles{_machine};
  SimulatedLoginItems _loginItems;
  SimulatedDefaults _userDefaults;
  QtRunLoop _runLoop;
  NotificationCenter _workspace;
  QObject _context;  // pending timers end with it
};
