#pragma once

#include "Platform/LoginItems.h"

/// The session's login items, in the system's shared file list. Items are identified by their
/// locations; one that does not resolve has no location and is never removed.
class MacLoginItems final : public LoginItems {
 public:
  QString ownLocation() const override;
  std::optional<QVector<Item>> snapshot() const override;
  void insertOwnItem() override;
  void remove(const Item &item) override;
};
