#pragma once

// The simulated machine's disks and partitions, those that were pulled among them.

#include <QTreeWidget>

#include "Platform/simulated/SimulatedPlatform.h"

class MachineTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit MachineTree(QWidget *parent = nullptr);

  /// Shows the machine as it is now. What was selected stays so while it is there.
  void showMachine(const SimulatedPlatform &platform);

  /// The BSD name of the selected disk or partition. Empty when nothing is selected.
  QString selectedName() const;

 protected:
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

 private:
  void add(const SimulatedDisk &disk, const QString &state);
};
