#pragma once

// A window beside the program that does to the simulated machine what people, cables and other
// programs do to a real one.
//
//   MachineWindow window(platform);
//   window.show();
//
// While the service works, the whole program takes no input, this window included: what is to go
// wrong in the middle of a request is chosen before it, as a mishap. Closing it quits nothing.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>
#include <functional>

#include "Demo/MachineTree.h"

class QBoxLayout;

class MachineWindow : public QWidget {
  Q_OBJECT

 public:
  /// The platform must outlive the window.
  explicit MachineWindow(SimulatedPlatform &platform);

 private:
  QBoxLayout *addGroup(const QString &title);
  void addAnswers(QBoxLayout *layout);
  void addVolume(QBoxLayout *layout);
  void addMachine(QBoxLayout *layout);
  QPushButton *addButton(QBoxLayout *layout, const QString &title, std::function<void()> action);
  /// Calls the action when a person has chosen.
  QComboBox *addChoice(QBoxLayout *layout, const QString &title, const QStringList &choices,
                       std::function<void(int index)> action);

  void refresh();
  void showSelected();
  /// Null where a whole disk, a pulled one or nothing is selected.
  const SimulatedPartition *selectedPartition() const;
  /// That of the selected disk, or of the disk with the selected partition; -1 for none.
  int selectedUnit() const;

  SimulatedPlatform &_platform;
  MachineTree *_tree;
  QLineEdit *_volumeName;
  QComboBox *_mountAnswer;
  QComboBox *_unmountAnswer;
  QComboBox *_mishap;
  QSpinBox *_delay;
  QPushButton *_mount;
  QPushButton *_unmount;
  QPushButton *_rename;
  QPushButton *_pull;
  QPushButton *_plugBack;
  QComboBox *_presence;
};
