#pragma once

// What a machine and the program's table ought to be: plain values with rules of their own, which
// ask neither the simulated platform nor the program anything. What is done to the platform is done
// to the model by the same name; see SimulatedPlatform for what these operations mean.

#include <QMap>
#include <functional>
#include <optional>

#include "Platform/simulated/Machine.h"

struct ModelRow {
  QString text;
  QString mountTitle;
  bool canMount = true;
  QString openTitle;
  bool canOpen = false;

  bool operator==(const ModelRow &) const = default;
};

class Model {
 public:
  using Presence = DiskService::Presence;
  enum class Outcome { Mounted, Unmounted, Refused, DiskVanished, ServiceLost, Nothing };

  explicit Model(QString volumesFolder) : _volumesFolder(std::move(volumesFolder)) {}

  void plug(SimulatedDisk disk);
  void pull(int unit);
  void plugBack(int unit);
  void mountFromOutside(const QString &bsdName);
  void unmountFromOutside(const QString &bsdName);
  void rename(const QString &bsdName, const QString &volumeName);
  void setPresence(Presence presence) { _presence = presence; }
  void setRefusals(const QString &bsdName, std::optional<DissenterStatus> mount,
                   std::optional<DissenterStatus> unmount);
  void setDelay(const QString &bsdName, std::chrono::milliseconds delay);
  void setMishap(const QString &bsdName, std::optional<Mishap> mishap);

  // What a person does.
  void tickShowAll() { _showAll = !_showAll; }
  void tickForce() { _force = !_force; }
  /// A click on the mount button of a row; `meanwhile` happens before the service answers.
  Outcome clickMount(const QString &bsdName, const std::function<void(Model &)> &meanwhile);
  /// The folder that a click on the open button of a row opens; absent if it opens none.
  std::optional<QString> folderToOpen(const QString &bsdName) const;

  /// By BSD name, in the order of the table.
  QMap<QString, ModelRow> rows() const;

  const QVector<SimulatedDisk> &disks() const { return _disks; }
  const QVector<SimulatedDisk> &pulledDisks() const { return _pulled; }
  const SimulatedPartition *partition(const QString &bsdName) const;
  Presence presence() const { return _presence; }

 private:
  SimulatedPartition *find(const QString &bsdName);
  Outcome answer(SimulatedPartition &partition, bool mounts) const;
  QString freeFolder(const SimulatedPartition &partition) const;
  ModelRow rowOf(const SimulatedDisk &disk, const SimulatedPartition &partition) const;

  QString _volumesFolder;
  QVector<SimulatedDisk> _disks;
  QVector<SimulatedDisk> _pulled;
  Presence _presence = Presence::Answering;
  bool _showAll = false;
  bool _force = false;
};
