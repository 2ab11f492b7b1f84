#pragma once

// A machine that exists only as data, and behaves: it mounts and unmounts, refuses, is slow, loses
// disks.
//
//   SimulatedPlatform platform(machine, std::make_unique<SystemClock>());
//   platform.pull(2);  // disk2 is gone, and whatever was mounted from it
//
// Mount points are real folders below a temporary one, so that the program can look into them; only "/" is this
// machine's own.
// Everything that the machine does is announced from the event loop, in order, before the request
// that caused it is answered.

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
  /// The machine must outlive this.
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
  /// `moment` is how long its run loop serves at a time where a real one takes 20 ms; a test, whose
  /// clock is its own, has none to lose.
  SimulatedPlatform(Machine machine, std::unique_ptr<Clock> clock,
                    std::chrono::milliseconds moment = QtRunLoop::kMoment);
  ~SimulatedPlatform() override;

  // The roles.
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
  /// There are /bin/df, /sbin/mount and /sbin/umount, the last for forced unmounts only. Whatever
  /// refuses a mount by the service refuses it by the program.
  ProgramRun run(const QString &path, const QStringList &arguments) override;

  /// The machine as it is now, pulled disks not among its own.
  const Machine &machine() const { return _machine; }
  /// Each as it was when it was pulled, with nothing of it mounted.
  const QVector<SimulatedDisk> &pulledDisks() const { return _pulled; }

  // What happens to the machine from outside. Names that are not there are ignored, and so is a
  // disk whose unit is there already.
  void plug(const SimulatedDisk &disk);
  /// Requests for it that are under way are answered with "not found".
  void pull(int unit);
  /// Plugs what was pulled.
  void plugBack(int unit);
  void mountFromOutside(const QString &bsdName);
  void unmountFromOutside(const QString &bsdName);
  void rename(const QString &bsdName, const QString &volumeName);
  /// When the service stops answering, requests under way are answered with "not ready".
  void setPresence(Presence presence);

  // How later requests for a partition are answered; absent values are as if nothing had been set.
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
  /// After disks have come or gone.
  void learnPlaces();

  std::optional<Dissenter> tryToMount(const QString &bsdName, const std::optional<QString> &path);
  std::optional<Dissenter> tryToUnmount(const QString &bsdName, UnmountOption option);
  /// Answers the request from the event loop once the partition's delay is over.
  void take(Request request);
  /// Lets the mishap of a request for this disk happen, now or while the request waits.
  void strike(Mishap mishap, int unit, std::chrono::milliseconds delay);
  void answer(int number);
  /// Answers requests before their time is over.
  void endRequests(DissenterStatus status, const std::function<bool(const Request &)> &concerns);

  QByteArray diskFree() const;
  bool mountByProgram(const QStringList &arguments);
  bool unmountByProgram(const QStringList &arguments);

  void putVolumes(SimulatedDisk &disk);
  void putAt(SimulatedPartition &partition, const QString &mountPoint);
  void takeAway(SimulatedPartition &partition);
  /// Where the machine has it, whose paths lie below its own folder: all but "/". A mere name is one in the volumes
  /// folder.
  QString placeFor(const QString &mountPoint) const;
  /// Whether it lies in the machine's own folder.
  bool isOurs(const QString &path) const;
  QString freeFolder(const SimulatedPartition &partition) const;
  void announce(const QString &name, const QString &path = {});
  /// In a later turn of the event loop; in the order of the calls.
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
  QObject _context;  // whatever is under way ends with it
};
