#include "Demo/MachineWindow.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>

#include "Demo/Words.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestDelay = 60'000;
constexpr int kDelayStep = 250;
constexpr int kMargin = 24;

}  // namespace

MachineWindow::MachineWindow(SimulatedPlatform &platform)
    : _platform(platform),
      _tree(new MachineTree),
      _volumeName(new QLineEdit),
      _mountAnswer(new ChoiceButton(tr("Mount"), phrases(refusals()))),
      _unmountAnswer(new ChoiceButton(tr("Unmount"), phrases(refusals()))),
      _mishap(new ChoiceButton(tr("Mishap"), phrases(mishaps()))),
      _delay(new QSpinBox),
      _service(new QButtonGroup(this)) {
  setWindowTitle(tr("Machine"));
  auto *layout = new QVBoxLayout(this);
  layout->addWidget(_tree, 1);
  layout->addWidget(answerControls());
  auto *line = new QHBoxLayout;
  layout->addLayout(line);
  line->addWidget(volumeControls(), 1);
  line->addWidget(diskControls());
  layout->addWidget(serviceControls());
  resize(760, 520);
  // The popover hangs from a corner at the top or at the right.
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  move(screen.left() + kMargin, qMax(screen.top(), screen.bottom() - height() - 2 * kMargin));

  connect(_tree, &QTreeWidget::currentItemChanged, this, &MachineWindow::showSelected);
  for (const QString &name : {kNSWorkspaceDidMountNotification, kNSWorkspaceDidUnmountNotification,
                              kNSWorkspaceDidRenameVolumeNotification}) {
    _platform.workspaceNotificationCenter().addObserver(
        this, name, [this](const Notification &) { refresh(); });
  }
  refresh();
}

QWidget *MachineWindow::diskControls() {
  auto *group = new QGroupBox(tr("Disk"));
  auto *layout = new QHBoxLayout(group);
  _pull = addButton(layout, tr("Pull"), &MachineWindow::pull);
  _plugBack = addButton(layout, tr("Plug back"), &MachineWindow::plugBack);
  return group;
}

QWidget *MachineWindow::volumeControls() {
  auto *group = new QGroupBox(tr("Volume, by another program"));
  auto *layout = new QHBoxLayout(group);
  _mount = addButton(layout, tr("Mount"), &MachineWindow::mount);
  _unmount = addButton(layout, tr("Unmount"), &MachineWindow::unmount);
  _volumeName->setAccessibleName(tr("Volume name"));
  layout->addWidget(_volumeName, 1);
  connect(_volumeName, &QLineEdit::returnPressed, this, &MachineWindow::rename);
  _rename = addButton(layout, tr("Rename"), &MachineWindow::rename);
  return group;
}

QWidget *MachineWindow::answerControls() {
  auto *group = new QGroupBox(tr("How the service answers requests for the partition"));
  auto *layout = new QHBoxLayout(group);
  for (ChoiceButton *button : {_mountAnswer, _unmountAnswer, _mishap}) layout->addWidget(button, 1);
  connect(_mountAnswer, &ChoiceButton::chosen, this, [this](int index) {
    if (const auto *partition = selectedPartition())
      refuse(refusals()[index], partition->unmountRefusal);
  });
  connect(_unmountAnswer, &ChoiceButton::chosen, this, [this](int index) {
    if (const auto *partition = selectedPartition())
      refuse(partition->mountRefusal, refusals()[index]);
  });
  connect(_mishap, &ChoiceButton::chosen, this, [this](int index) {
    _platform.setMishap(_tree->selectedName(), mishaps()[index]);
    refresh();
  });

  auto *label = new QLabel(tr("Delay"));
  label->setBuddy(_delay);
  layout->addWidget(label);
  layout->addWidget(_delay);
  _delay->setAccessibleName(tr("Delay"));
  _delay->setRange(0, kLongestDelay);
  _delay->setSingleStep(kDelayStep);
  _delay->setKeyboardTracking(false);
  _delay->setSuffix(tr(" ms"));
  connect(_delay, &QSpinBox::valueChanged, this, [this](int milliseconds) {
    _platform.setDelay(_tree->selectedName(), std::chrono::milliseconds(milliseconds));
    _tree->showMachine(_platform);
  });
  return group;
}

QWidget *MachineWindow::serviceControls() {
  using enum DiskService::Presence;
  auto *group = new QGroupBox(tr("Disk service"));
  auto *layout = new QHBoxLayout(group);
  for (const auto &[presence, title] :
       {std::pair(Answering, tr("answers")), std::pair(Asking, tr("has not answered yet")),
        std::pair(Absent, tr("is absent"))}) {
    auto *button = new QRadioButton(title);
    _service->addButton(button, static_cast<int>(presence));
    layout->addWidget(button);
  }
  layout->addStretch();
  connect(_service, &QButtonGroup::idClicked, this, [this](int presence) {
    _platform.setPresence(static_cast<DiskService::Presence>(presence));
  });
  return group;
}

QPushButton *MachineWindow::addButton(QBoxLayout *layout, const QString &title,
                                      void (MachineWindow::*action)()) {
  auto *button = new QPushButton(title);
  connect(button, &QPushButton::clicked, this, action);
  layout->addWidget(button);
  return button;
}

void MachineWindow::pull() {
  if (const auto unit = selectedUnit(_platform.machine().disks)) _platform.pull(*unit);
}

void MachineWindow::plugBack() {
  if (const auto unit = selectedUnit(_platform.pulledDisks())) _platform.plugBack(*unit);
}

void MachineWindow::mount() {
  _platform.mountFromOutside(_tree->selectedName());
}

void MachineWindow::unmount() {
  _platform.unmountFromOutside(_tree->selectedName());
}

void MachineWindow::rename() {
  _platform.rename(_tree->selectedName(), _volumeName->text());
}

void MachineWindow::refuse(std::optional<DissenterStatus> mount,
                           std::optional<DissenterStatus> unmount) {
  _platform.setRefusals(_tree->selectedName(), mount, unmount);
  refresh();
}

void MachineWindow::refresh() {
  _tree->showMachine(_platform);
  _service->button(static_cast<int>(_platform.presence()))->setChecked(true);
  showSelected();
}

void MachineWindow::showSelected() {
  const SimulatedPartition *partition = selectedPartition();
  for (QWidget *control :
       QWidgetList{_volumeName, _rename, _mountAnswer, _unmountAnswer, _mishap, _delay}) {
    control->setEnabled(partition != nullptr);
  }
  const SimulatedPartition shown = partition ? *partition : SimulatedPartition();
  _mount->setEnabled(!shown.volumeKind.isEmpty() && !shown.mountPoint);
  _unmount->setEnabled(shown.mountPoint.has_value());
  _pull->setEnabled(selectedUnit(_platform.machine().disks).has_value());
  _plugBack->setEnabled(selectedUnit(_platform.pulledDisks()).has_value());

  const QSignalBlocker notByAPerson(_delay);
  _delay->setValue(static_cast<int>(shown.delay.count()));
  if (_volumeName->text() != shown.volumeName) _volumeName->setText(shown.volumeName);
  _mountAnswer->setCurrent(phrase(shown.mountRefusal));
  _unmountAnswer->setCurrent(phrase(shown.unmountRefusal));
  _mishap->setCurrent(phrase(shown.mishap));
}

const SimulatedPartition *MachineWindow::selectedPartition() const {
  const QString name = _tree->selectedName();
  for (const SimulatedDisk &disk : _platform.machine().disks) {
    for (const SimulatedPartition &partition : disk.partitions) {
      if (disk.bsdName(partition) == name) return &partition;
    }
  }
  return nullptr;
}

std::optional<int> MachineWindow::selectedUnit(const QVector<SimulatedDisk> &disks) const {
  const QString name = _tree->selectedName();
  for (const SimulatedDisk &disk : disks) {
    if (name == disk.bsdName() || name.startsWith(disk.bsdName() + u's')) return disk.unit;
  }
  return std::nullopt;
}
