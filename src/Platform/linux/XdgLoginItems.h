#pragma once

// Login items as the desktops of this system keep them: one desktop entry each in a folder of the
// user's.

#include <QSet>
#include <functional>

#include "Platform/LoginItems.h"
#include "Platform/VolumeFiles.h"

class KeyFile;

class XdgLoginItems final : public LoginItems {
 public:
  /// How a path is looked at: programs of others, and what links lead to, may lie on a volume that never
  /// answers.
  using Look = std::function<LookAtPath(const QString &)>;

  /// `folder` is the user's autostart folder, made when it is needed; `program` the path of this
  /// program.
  XdgLoginItems(QString folder, const QString &program, Look look = lookAtOnce);

  static LookAtPath lookAtOnce(const QString &path);

  /// In the folder that the desktop reads, for the executable that is running.
  static XdgLoginItems ofThisUser(Look look);

  QString ownLocation() const override;

  /// An item's location is the program that its entry starts: absolute, or found on the search
  /// path, links resolved; also of one that the user, or the desktop, has switched off. Absent for an
  /// entry that is broken, or names no program that is there.
  std::optional<QVector<Item>> snapshot() const override;

  /// Switches an own item on that is switched off, and changes nothing else of it. Entries of others
  /// are left alone. While it cannot be told which are which, nothing is added.
  void insertOwnItem() override;

  /// An item that is switched off starts nothing: its entry stays as it is, and has no location from
  /// then on.
  void remove(const Item &item) override;

 private:
  QStringList entryNames() const;
  /// Empty when nothing is there, or it cannot be told.
  QString realPath(const QString &path) const;
  /// Without lines for what is no plain file of a sensible size.
  KeyFile readEntry(const QString &name) const;
  /// Also of an entry that is switched off.
  std::optional<QString> programOf(const KeyFile &entry) const;
  /// False when this is no own entry that is switched off.
  bool switchOn(const QString &name);

  QSet<QString> _leftAlone;
  QString _folder;
  QString _program;
  Look _look;
  mutable bool _isAnsweredLate = false;
};
