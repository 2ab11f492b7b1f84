#pragma once

#include "Platform/LoginItems.h"

/// The application's preferences, stored under its bundle identifier.
class MacUserDefaults final : public UserDefaults {
 public:
  QVariant object(const QString &key) const override;
  void setBool(const QString &key, bool value) override;
  void synchronize() override;
};
