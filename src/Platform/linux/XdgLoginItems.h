#pragma once

// Login items of Linux desktops: one desktop entry each in a folder of the user.

#include <QSet>
#include <functional>

#include "Platform/LoginItems.h"
#include "Platform/VolumeFiles.h"

class KeyFile;

class XdgLoginItems final : public LoginItems {
 public:
  /// Looks at a path: other programs, and targets of links, may lie on a volume that never answers.
  using Look = std::function<LookAtPath(const QString &)>;

  /// `folder` is the user's autostart folder, created when needed; `program` the path of this
  /// program.
  XdgLoginItems(QString folder, const QString &program, Look look = lookAtOnce);

  static LookAtPath lookAtOnce(const QString &path);

  /// For the folder that the desktop reads and the running executable.
  static XdgLoginItems ofThisUser(Look look);

  QString ownLocation() const override;

  /// An item's location is the program that its entry starts: absolute or from the search path, links
  /// resolved, even if the user or the desktop has switched the entry off. Absent for an entry that
  /// is broken, or whose program does not exist.
  std::optional<QVector<Item>> snapshot() const override;

  /// If an own item is switched off, switches it on and changes nothing else of it. Entries of
  /// others are not changed. While it cannot be determined which items are own, adds nothing.
  void insertOwnItem() override;

  /// An item that is switched off starts nothing, so its entry stays, without a location from then
  /// on.
  void remove(const Item &item) override;

 private:
  QStringList entryNames() const;
  /// Empty when nothing exists there, or the volume does not answer.
  QString realPath(const QString &path) const;
  /// Empty unless the file is a plain file of a sensible size.
  KeyFile readEntry(const QString &name) const;
  /// Works also for an entry that is switched off.
  std::optional<QString> programOf(const KeyFile &entry) const;
  /// False unless this is an own entry that is switched off.
  bool switchOn(const QString &name);

  QSet<QString> _leftAlone;
  QString _folder;
  QString _program;
  Look _look;
  mutable bool _isAnsweredLate = false;
};
