#pragma once

// The simulated machine's disks and partitions, including those that were pulled.

#include <QTreeWidget>

#include "Platform/simulated/SimulatedPlatform.h"

class MachineTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit MachineTree(QWidget *parent = nullptr);

  /// Shows the machine as it is now. The selection stays while the selected entry exists.
  void showMachine(const SimulatedPlatform &platform);

  /// The BSD name of the selected disk or partition. Empty when nothing is selected.
  QString selectedName() const;

 protected:
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

 private:
  void add(const SimulatedDisk &disk, const QString &state);
};
