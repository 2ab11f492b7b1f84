#pragma once

// What starts when the user logs in, and what the program remembers for its user: two roles of the
// seam (see Platform.h) that have nothing to do with disks.

#include <QString>
#include <QVariant>
#include <QVector>
#include <optional>

/// The user's list of programs that start at login, with entries of others among them.
class LoginItems {
 public:
  struct Item {
    QString identifier;  // the backend's own name for the entry
    std::optional<QString>
        location;  // the program that it starts; absent where that cannot be found out
  };

  virtual ~LoginItems() = default;

  /// The path of this program, as an item for it has it for a location.
  virtual QString ownLocation() const = 0;

  /// The list as it is now, in its order. Absent when it cannot be had.
  virtual std::optional<QVector<Item>> snapshot() const = 0;

  /// Adds an item for this program at the end. Leaves the list as it is when that fails.
  virtual void insertOwnItem() = 0;

  /// Leaves the list as it is when the item is not there, or cannot be removed.
  virtual void remove(const Item &item) = 0;
};

/// The program's settings of this user.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  /// Whether it can be told what is stored.
  virtual bool canBeRead() const { return true; }
  /// Invalid when nothing is stored under the key.
  virtual QVariant object(const QString &key) const = 0;
  virtual void setBool(const QString &key, bool value) = 0;
  /// Returns when what was set is on the disk, or cannot be put there.
  virtual void synchronize() = 0;
};
