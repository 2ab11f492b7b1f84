#pragma once

#include "Platform/LoginItems.h"

/// The session's login items, in the system's shared file list. An item goes by its location; one
/// that does not resolve has none and is never removed.
class MacLoginItems final : public LoginItems {
 public:
  QString ownLocation() const override;
  std::optional<QVector<Item>> snapshot() const override;
  void insertOwnItem() override;
  void remove(const Item &item) override;
};
