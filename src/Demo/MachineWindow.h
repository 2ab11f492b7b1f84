#pragma once

// A second window of the program that does to the simulated machine what users, cables and other
// programs do to a real one.
//
//   MachineWindow window(platform);
//   window.show();
//
// While the service works, the whole program takes no input, this window included. A failure in the
// middle of a request is therefore chosen before the request, as a mishap. Closing the window does
// not quit the program.

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
  /// Calls the action when the user has chosen.
  QComboBox *addChoice(QBoxLayout *layout, const QString &title, const QStringList &choices,
                       std::function<void(int index)> action);

  void refresh();
  void showSelected();
  /// Null when a whole disk, a pulled partition or nothing is selected.
  const SimulatedPartition *selectedPartition() const;
  /// The unit of the selected disk, or of the selected partition's disk; -1 for none.
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
