#pragma once

// The kernel's mount table.
//
// Each call first asks the kernel, through a file descriptor of its own, whether the table has
// changed, and only then reads it again: the answers are right even while no event loop runs.

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
  quint64 id = 0;      // of this mount; reused after its end
  quint64 device = 0;  // the file system's device number
  QByteArray root;     // which folder of the file system is mounted
  QByteArray mountPoint;
  QByteArray fileSystem;
  QByteArray source;
  QByteArray options;  // of the file system
};

/// The lines of a table in the form of /proc/self/mountinfo, in order. Malformed ones are left out.
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
  /// `file` is a table in the form of /proc/self/mountinfo. One that cannot be opened counts as
  /// empty.
  explicit MountTable(const QString &file);
  ~MountTable();
  MountTable(const MountTable &) = delete;
  MountTable &operator=(const MountTable &) = delete;

  /// Calls `handler` from the event loop after each change of the table, whoever has noticed it
  /// first.
  void setChangeHandler(std::function<void()> handler);

  /// Updates the answers below. True if they may have changed.
  bool refresh();

  /// Mounts of whole volumes in the kernel's order, including subvolumes of btrfs. A mount of a
  /// folder of a volume is left out, except at "/".
  const QList<Mount> &mounts() const { return _mounts; }

  /// "/" if that is one of the device's mount points, else the first one. Absent if it is not
  /// mounted.
  std::optional<QString> mountPointOf(quint64 device) const;

  /// The device of the topmost mount at this place. 0 if there is none.
  quint64 deviceAt(const QString &mountPoint) const { return _topmost.value(mountPoint).device; }

  /// The mount that contains a path, by its text; its device is 0 if it is not in `mounts`.
  Mount holding(const QString &path) const;

 private:
  bool hasChanged() const;
  QByteArray readAll() const;
  void takeLines(const QList<MountLine> &lines);

  int _table;
  int _wakeUp;  // separate, because each descriptor reports a change once
  std::unique_ptr<QSocketNotifier> _notifier;
  bool _isRead = false;
  QList<Mount> _mounts;
  QHash<quint64, QString> _mountPointOf;
  QHash<QString, Mount> _topmost;  // by mount point, of all kinds
};
