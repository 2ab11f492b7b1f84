#pragma once

// User defaults in a settings file: texts, in the group that is called General.

#include <QByteArray>
#include <QHash>

#include "Platform/LoginItems.h"

class SettingsDefaults final : public UserDefaults {
 public:
  /// In the file of this name, which is made when something is set. One that cannot be read, or is far
  /// larger than any of ours, counts as empty and is left alone.
  explicit SettingsDefaults(QString fileName) : _fileName(std::move(fileName)) {}

  bool canBeRead() const override;
  QVariant object(const QString &key) const override;
  void setBool(const QString &key, bool value) override;
  void synchronize() override;

 private:
  QString _fileName;
  QHash<QString, QByteArray> _set;  // not on the disk yet
};
