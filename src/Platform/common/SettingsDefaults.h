#pragma once

// User defaults in a settings file: texts, in the group "General".

#include <QByteArray>
#include <QHash>

#include "Platform/LoginItems.h"

class SettingsDefaults final : public UserDefaults {
 public:
  /// Uses the file of this name, which is created when a value is set. A file that cannot be read, or
  /// is far larger than the program's own, counts as empty and is not changed.
  explicit SettingsDefaults(QString fileName) : _fileName(std::move(fileName)) {}

  bool canBeRead() const override;
  QVariant object(const QString &key) const override;
  void setBool(const QString &key, bool value) override;
  void synchronize() override;

 private:
  QString _fileName;
  QHash<QString, QByteArray> _set;  // not on the disk yet
};
