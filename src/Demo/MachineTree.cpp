#include "Demo/MachineTree.h"

#include <QHeaderView>

#include "Demo/Words.h"
#include "Foundation/Text.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { kName, kMedia, kVolume, kState, kAnswers };

// Names may be of any length, and a row is one line.
QString shortened(const QString &text) {
  constexpr int kLongest = 100;
  return text.left(kLongest).simplified();
}

QString answersOf(const SimulatedPartition &partition) {
  QStringList words;
  if (partition.mountRefusal) words += MachineTree::tr("mount: ") + phrase(partition.mountRefusal);
  if (partition.unmountRefusal) {
    words += MachineTree::tr("unmount: ") + phrase(partition.unmountRefusal);
  }
  if (partition.delay.count() > 0) words += MachineTree::tr("%1 ms").arg(partition.delay.count());
  if (partition.mishap) words += phrase(partition.mishap);
  return words.join(u", "_s);
}

QString placeOf(const SimulatedPartition &partition) {
  if (!partition.mountPoint) return {};
  return MachineTree::tr("mounted at %1").arg(shortened(lastPathComponent(*partition.mountPoint)));
}

}  // namespace

MachineTree::MachineTree(QWidget *parent) : QTreeWidget(parent) {
  setAccessibleName(tr("Disks and partitions"));
  setHeaderLabels({tr("Name"), tr("Media"), tr("Volume"), tr("State"), tr("Answers")});
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  header()->resizeSection(kName, 100);
  header()->resizeSection(kMedia, 180);
  header()->resizeSection(kVolume, 90);
  header()->resizeSection(kState, 140);
}

void MachineTree::showMachine(const SimulatedPlatform &platform) {
  const QSignalBlocker nothingIsSelectedByAPerson(this);
  const QString selected = selectedName();
  clear();
  for (const SimulatedDisk &disk : platform.machine().disks) add(disk, tr("plugged"));
  for (const SimulatedDisk &disk : platform.pulledDisks()) add(disk, tr("pulled"));
  expandAll();
  const auto found = findItems(selected, Qt::MatchExactly | Qt::MatchRecursive, kName);
  if (!found.isEmpty()) {
    setCurrentItem(found.first());
  } else if (QTreeWidgetItem *disk = topLevelItem(0)) {
    setCurrentItem(disk->childCount() > 0 ? disk->child(0) : disk);
  }
}

void MachineTree::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  // A tree tells screen readers that it has the keyboard, whether it has or not.
  if (hasFocus()) {
    QTreeWidget::currentChanged(current, previous);
  } else {
    QAbstractItemView::currentChanged(current, previous);
  }
}

QString MachineTree::selectedName() const {
  return currentItem() ? currentItem()->text(kName) : QString();
}

void MachineTree::add(const SimulatedDisk &disk, const QString &state) {
  auto *parent = new QTreeWidgetItem(this, {disk.bsdName(), shortened(disk.media), {}, state});
  for (const SimulatedPartition &partition : disk.partitions) {
    new QTreeWidgetItem(
        parent, {disk.bsdName(partition), shortened(partition.media),
                 shortened(partition.volumeName), placeOf(partition), answersOf(partition)});
  }
}
