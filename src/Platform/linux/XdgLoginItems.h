#pragma once

// Login items as the desktops of this system keep them: one desktop entry each in a folder of the
// user's.

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
  /// path, links resolved. Absent for an entry that is switched off or broken, or names no program
  /// that is there.
  std::optional<QVector<Item>> snapshot() const override;

  /// Also switches an own item on again that the user, or the desktop, has switched off. Entries of
  /// others are left alone.
  void insertOwnItem() override;
  void remove(const Item &item) override;

 private:
  QString fileNameForOwnItem() const;

  QString _folder;
  QString _program;
};
