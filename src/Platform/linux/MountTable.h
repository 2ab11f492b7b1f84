#pragma once

// What is mounted where, as the kernel tells it.
//
// The kernel's table is asked, through a descriptor of its own, at the moment of every question
// whether it has changed, and is read again only then: the answers are true also while no event
// loop turns.

#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

class QSocketNotifier;

/// One line of the kernel's table.
struct MountLine {
  quint64 id = 0;      // of this mount; free for another one once it is gone
  quint64 device = 0;  // the file system's device number
  QByteArray root;     // which folder of the file system is mounted
  QByteArray mountPoint;
  QByteArray fileSystem;
  QByteArray source;
  QByteArray options;  // of the file system
};

/// The lines of a table in the form of /proc/self/mountinfo, in their order. Malformed ones are
/// left out.
QList<MountLine> parseMountTable(QByteArrayView text);

/// A mounted volume of a block device.
struct Mount {
  quint64 id = 0;
  quint64 device = 0;
  QString mountPoint;
  bool operator==(const Mount &) const = default;
};

inline size_t qHash(const Mount &mount, size_t seed = 0) {
  return qHashMulti(seed, mount.id, mount.device, mount.mountPoint);
}

class MountTable {
 public:
  /// `file` is a table in the form of /proc/self/mountinfo. One that cannot be opened is empty.
  explicit MountTable(const QString &file);
  ~MountTable();
  MountTable(const MountTable &) = delete;
  MountTable &operator=(const MountTable &) = delete;

  /// Calls `handler` from the event loop after the table has changed, however the change became
  /// known.
  void setChangeHandler(std::function<void()> handler);

  /// Brings the answers below up to date. True if they may be others than before.
  bool refresh();

  /// Mounts of whole volumes in the kernel's order; a subvolume of btrfs is one. A mount of a mere
  /// folder of one is none, but at "/".
  const QList<Mount> &mounts() const { return _mounts; }

  /// "/" if the device is mounted there among others, else where it was mounted first.
  std::optional<QString> mountPointOf(quint64 device) const;

  /// Where several are mounted at the same place, the one on top. 0 if there is none.
  quint64 deviceAt(const QString &mountPoint) const { return _topmost.value(mountPoint).device; }

  /// The mount on which a path lies, by its text; its device is 0 if it is none of the above.
  Mount holding(const QString &path) const;

 private:
  bool hasChanged() const;
  QByteArray readAll() const;
  void takeLines(const QList<MountLine> &lines);

  int _table;
  int _wakeUp;  // apart from `_table`: each descriptor is told of a change once
  std::unique_ptr<QSocketNotifier> _notifier;
  bool _isRead = false;
  QList<Mount> _mounts;
  QHash<quint64, QString> _mountPointOf;
  QHash<QString, Mount> _topmost;  // by mount point, of all kinds
};
