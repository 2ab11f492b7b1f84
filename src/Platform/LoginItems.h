#pragma once

// The programs that start when the user logs in, and the program's settings of the user: two roles
// of the seam (see Platform.h) that do not concern disks.

#include <QString>
#include <QVariant>
#include <QVector>
#include <optional>

/// The user's list of programs that start at login, including other programs.
class LoginItems {
 public:
  struct Item {
    QString identifier;  // the backend's own name for the entry
    std::optional<QString>
        location;  // the program that it starts; absent where that cannot be found out
  };

  virtual ~LoginItems() = default;

  /// The path of this program, in the form in which an item has it as its location.
  virtual QString ownLocation() const = 0;

  /// The present list, in its own order. Absent when the list cannot be read.
  virtual std::optional<QVector<Item>> snapshot() const = 0;

  /// Adds an item for this program at the end. On failure the list is unchanged.
  virtual void insertOwnItem() = 0;

  /// Leaves the list unchanged when the item is not in it, or cannot be removed.
  virtual void remove(const Item &item) = 0;
};

/// The program's settings of this user.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  /// Whether the stored settings can be read.
  virtual bool canBeRead() const { return true; }
  /// Invalid when nothing is stored under the key.
  virtual QVariant object(const QString &key) const = 0;
  virtual void setBool(const QString &key, bool value) = 0;
  /// Blocks until the settings are on the disk, or cannot be written.
  virtual void synchronize() = 0;
};
