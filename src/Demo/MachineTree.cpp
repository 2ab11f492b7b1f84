#include "Demo/MachineTree.h"

#include <QHeaderView>
#include <tuple>

#include "Demo/Words.h"
#include "Foundation/Text.h"

using namespace Qt::StringLiterals;

namespace {

// Names may be of any length, and a row is one line.
QString shortened(const QString &text) {
  constexpr int kLongest = 100;
  return text.left(kLongest).simplified();
}

QString answersOf(const SimulatedPartition &partition) {
  const auto &[mount, unmount, delay, mishap] =
      std::tie(partition.mountRefusal, partition.unmountRefusal, partition.delay, partition.mishap);
  QStringList words;
  if (mount) words += MachineTree::tr("mount: ") + phrase(refusals(), mount);
  if (unmount) words += MachineTree::tr("unmount: ") + phrase(refusals(), unmount);
  if (delay.count() > 0) words += MachineTree::tr("%1 ms").arg(delay.count());
  if (mishap) words += phrase(mishaps(), mishap);
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
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void MachineTree::showMachine(const SimulatedPlatform &platform) {
  const QSignalBlocker nothingIsSelectedByAPerson(this);
  const QString selected = selectedName();
  clear();
  for (const SimulatedDisk &disk : platform.machine().disks) add(disk, tr("plugged"));
  for (const SimulatedDisk &disk : platform.pulledDisks()) add(disk, tr("pulled"));
  expandAll();
  const auto found = findItems(selected, Qt::MatchExactly | Qt::MatchRecursive);
  if (!found.isEmpty()) {
    setCurrentItem(found.first());
  } else if (QTreeWidgetItem *disk = topLevelItem(0)) {
    setCurrentItem(disk->childCount() > 0 ? disk->child(0) : disk);
  }
}

void MachineTree::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  // QTreeWidget reports the focus to screen readers whether the tree has it or not.
  if (hasFocus()) {
    QTreeWidget::currentChanged(current, previous);
  } else {
    QAbstractItemView::currentChanged(current, previous);
  }
}

QString MachineTree::selectedName() const {
  return currentItem() ? currentItem()->text(0) : QString();
}

void MachineTree::add(const SimulatedDisk &disk, const QString &state) {
  auto *parent = new QTreeWidgetItem(this, {disk.bsdName(), shortened(disk.media), {}, state});
  for (const SimulatedPartition &partition : disk.partitions) {
    new QTreeWidgetItem(
        parent, {disk.bsdName(partition), shortened(partition.media),
                 shortened(partition.volumeName), placeOf(partition), answersOf(partition)});
  }
}

#include "moc_MachineTree.cpp"
