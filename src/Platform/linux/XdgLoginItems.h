#pragma once

// Login items as the desktops of this system keep them: one desktop entry each in a folder of the
// user's.

#include <QSet>

#include "Platform/LoginItems.h"

class XdgLoginItems final : public LoginItems {
 public:
  /// `folder` is the user's autostart folder, made when it is needed; `program` the path of this
  /// program.
  XdgLoginItems(QString folder, QString program);

  /// In the folder that the desktop reads, for the executable that is running.
  static XdgLoginItems ofThisUser();

  QString ownLocation() const override;

  /// An item's location is the program that its entry starts: absolute, or found on the search
  /// path, links resolved; also of one that the user, or the desktop, has switched off. Absent for an
  /// entry that is broken, or names no program that is there.
  std::optional<QVector<Item>> snapshot() const override;

  /// Switches an own item on that is switched off, and changes nothing else of it. Entries of others
  /// are left alone.
  void insertOwnItem() override;

  /// An item that is switched off starts nothing: its entry stays as it is, and has no location from
  /// then on.
  void remove(const Item &item) override;

 private:
  QStringList entryNames() const;
  /// False when this is no own entry that is switched off.
  bool switchOn(const QString &name);

  QSet<QString> _leftAlone;
  QString _folder;
  QString _program;
};
