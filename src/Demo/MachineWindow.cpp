#include "Demo/MachineWindow.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <algorithm>

#include "Demo/Words.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestDelay = 60'000;
constexpr int kDelayStep = 250;
constexpr int kMargin = 24;

template <typename Value>
QStringList wordsOf(const Choices<Value> &choices) {
  QStringList all;
  for (const auto &[value, words] : choices) all += words;
  return all;
}

template <typename Value>
void choose(QComboBox *box, const Choices<Value> &choices, const std::optional<Value> &value) {
  box->setCurrentIndex(box->findText(phrase(choices, value)));
}

}  // namespace

MachineWindow::MachineWindow(SimulatedPlatform &platform)
    : _platform(platform), _tree(new MachineTree) {
  setWindowTitle(tr("Machine"));
  auto *layout = new QVBoxLayout(this);
  layout->addWidget(_tree, 1);
  addAnswers(addGroup(tr("How the service answers requests for the partition")));
  addVolume(addGroup(tr("Volume, by another program")));
  addMachine(addGroup(tr("Disk and disk service")));
  resize(760, 520);
  // The popover opens in a corner at the top or at the right, so this window goes to the bottom
  // left.
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

QBoxLayout *MachineWindow::addGroup(const QString &title) {
  auto *group = new QGroupBox(title);
  layout()->addWidget(group);
  return new QHBoxLayout(group);
}

void MachineWindow::addVolume(QBoxLayout *layout) {
  _mount =
      addButton(layout, tr("Mount"), [this] { _platform.mountFromOutside(_tree->selectedName()); });
  _unmount = addButton(layout, tr("Unmount"),
                       [this] { _platform.unmountFromOutside(_tree->selectedName()); });
  _volumeName = new QLineEdit;
  _volumeName->setAccessibleName(tr("Volume name"));
  layout->addWidget(_volumeName, 1);
  _rename = addButton(layout, tr("Rename"),
                      [this] { _platform.rename(_tree->selectedName(), _volumeName->text()); });
  connect(_volumeName, &QLineEdit::returnPressed, _rename, &QPushButton::click);
}

void MachineWindow::addAnswers(QBoxLayout *layout) {
  const auto refuse = [this](int /*index*/) {
    _platform.setRefusals(_tree->selectedName(),
                          refusals().value(_mountAnswer->currentIndex()).first,
                          refusals().value(_unmountAnswer->currentIndex()).first);
    refresh();
  };
  _mountAnswer = addChoice(layout, tr("Mount"), wordsOf(refusals()), refuse);
  _unmountAnswer = addChoice(layout, tr("Unmount"), wordsOf(refusals()), refuse);
  _mishap = addChoice(layout, tr("Mishap"), wordsOf(mishaps()), [this](int index) {
    _platform.setMishap(_tree->selectedName(), mishaps()[index].first);
    refresh();
  });

  _delay = new QSpinBox;
  _delay->setPrefix(tr("Delay") + u' ');
  _delay->setAccessibleName(tr("Delay"));
  _delay->setRange(0, kLongestDelay);
  _delay->setSingleStep(kDelayStep);
  _delay->setKeyboardTracking(false);
  _delay->setSuffix(tr(" ms"));
  layout->addWidget(_delay);
  connect(_delay, &QSpinBox::valueChanged, this, [this](int milliseconds) {
    _platform.setDelay(_tree->selectedName(), std::chrono::milliseconds(milliseconds));
    _tree->showMachine(_platform);
  });
}

void MachineWindow::addMachine(QBoxLayout *layout) {
  _pull = addButton(layout, tr("Pull"), [this] { _platform.pull(selectedUnit()); });
  _plugBack = addButton(layout, tr("Plug back"), [this] { _platform.plugBack(selectedUnit()); });
  // In the order of `DiskService::Presence`.
  const QStringList presences = {tr("has not answered yet"), tr("answers"), tr("is absent")};
  _presence = addChoice(layout, tr("Disk service"), presences, [this](int index) {
    _platform.setPresence(static_cast<DiskService::Presence>(index));
  });
}

QPushButton *MachineWindow::addButton(QBoxLayout *layout, const QString &title,
                                      std::function<void()> action) {
  auto *button = new QPushButton(title);
  connect(button, &QPushButton::clicked, this, std::move(action));
  layout->addWidget(button);
  return button;
}

QComboBox *MachineWindow::addChoice(QBoxLayout *layout, const QString &title,
                                    const QStringList &choices,
                                    std::function<void(int index)> action) {
  auto *box = new QComboBox;
  box->addItems(choices);
  box->setAccessibleName(title);
  connect(box, &QComboBox::activated, this, std::move(action));
  auto *label = new QLabel(title);
  label->setBuddy(box);
  layout->addWidget(label);
  layout->addWidget(box, 1);
  return box;
}

void MachineWindow::refresh() {
  _tree->showMachine(_platform);
  _presence->setCurrentIndex(static_cast<int>(_platform.presence()));
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
  const auto isSelected = [this](const SimulatedDisk &disk) { return disk.unit == selectedUnit(); };
  const auto isAmong = [&](const QVector<SimulatedDisk> &disks) {
    return std::any_of(disks.begin(), disks.end(), isSelected);
  };
  _pull->setEnabled(isAmong(_platform.machine().disks));
  _plugBack->setEnabled(isAmong(_platform.pulledDisks()));

  const QSignalBlocker notByAPerson(_delay);
  _delay->setValue(static_cast<int>(shown.delay.count()));
  if (_volumeName->text() != shown.volumeName) _volumeName->setText(shown.volumeName);
  choose(_mountAnswer, refusals(), shown.mountRefusal);
  choose(_unmountAnswer, refusals(), shown.unmountRefusal);
  choose(_mishap, mishaps(), shown.mishap);
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

int MachineWindow::selectedUnit() const {
  const QString afterDisk = _tree->selectedName().mid(4);
  return afterDisk.isEmpty() ? -1 : afterDisk.section(u's', 0, 0).toInt();
}

#include "moc_MachineWindow.cpp"
