#pragma once

// User defaults in a settings file.

#include <QSettings>

#include "Platform/LoginItems.h"

class SettingsDefaults final : public UserDefaults {
 public:
  /// In the file of this name, which is made when something is set.
  explicit SettingsDefaults(const QString &fileName) : _settings(fileName, QSettings::IniFormat) {}

  QVariant object(const QString &key) const override { return _settings.value(key); }
  void setBool(const QString &key, bool value) override { _settings.setValue(key, value); }
  void synchronize() override { _settings.sync(); }

 private:
  QSettings _settings;
};
