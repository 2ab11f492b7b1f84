#pragma once

// A window beside the program that does to the simulated machine what people, cables and other
// programs do to a real one.
//
//   MachineWindow window(platform);
//   window.show();
//
// While the service works, the whole program takes no input, this window included: what is to go
// wrong in the middle of a request is chosen before it, as a mishap. Closing it quits nothing.

#include <QButtonGroup>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>
#include <optional>

#include "Demo/ChoiceButton.h"
#include "Demo/MachineTree.h"

class QBoxLayout;

class MachineWindow : public QWidget {
  Q_OBJECT

 public:
  /// The platform must outlive the window.
  explicit MachineWindow(SimulatedPlatform &platform);

 private:
  QWidget *diskControls();
  QWidget *volumeControls();
  QWidget *answerControls();
  QWidget *serviceControls();
  QPushButton *addButton(QBoxLayout *layout, const QString &title, void (MachineWindow::*action)());

  void pull();
  void plugBack();
  void mount();
  void unmount();
  void rename();
  void refuse(std::optional<DissenterStatus> mount, std::optional<DissenterStatus> unmount);

  void refresh();
  void showSelected();
  /// Null where a whole disk, a pulled one or nothing is selected.
  const SimulatedPartition *selectedPartition() const;
  /// That of the selected disk, or of the disk with the selected partition; absent if it is not
  /// among these disks.
  std::optional<int> selectedUnit(const QVector<SimulatedDisk> &disks) const;

  SimulatedPlatform &_platform;
  MachineTree *_tree;
  QLineEdit *_volumeName;
  ChoiceButton *_mountAnswer;
  ChoiceButton *_unmountAnswer;
  ChoiceButton *_mishap;
  QSpinBox *_delay;
  QPushButton *_mount;
  QPushButton *_unmount;
  QPushButton *_rename;
  QPushButton *_pull;
  QPushButton *_plugBack;
  QButtonGroup *_service;
};
