#pragma once

// A user of a simulated machine: login items and settings in memory only, so that the demo changes
// nothing of the real user's.

#include <QVariantMap>

#include "Platform/LoginItems.h"

class SimulatedLoginItems final : public LoginItems {
 public:
  QString ownLocation() const override { return QStringLiteral("/opt/keldra"); }
  std::optional<QVector<Item>> snapshot() const override { return _items; }
  void insertOwnItem() override { insert(ownLocation()); }
  void remove(const Item &item) override {
    _items.removeIf([&](const Item &each) { return each.identifier == item.identifier; });
  }

  /// Another program's item; absent for one that cannot be resolved.
  void insert(const std::optional<QString> &location) {
    _items.append({QString::number(++_lastNumber), location});
  }

 private:
  QVector<Item> _items;
  int _lastNumber = 0;
};

class SimulatedDefaults final : public UserDefaults {
 public:
  bool canBeRead() const override { return _canBeRead; }
  QVariant object(const QString &key) const override { return _objects.value(key); }
  void setBool(const QString &key, bool value) override { set(key, value); }
  void synchronize() override {}

  /// Sets a value, as an older program may have stored it.
  void set(const QString &key, const QVariant &value) { _objects.insert(key, value); }
  void setCanBeRead(bool canBeRead) { _canBeRead = canBeRead; }

 private:
  QVariantMap _objects;
  bool _canBeRead = true;
};
