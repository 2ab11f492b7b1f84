#pragma once

// All media that the disk service knows, by their BSD names and in their order.
//
// Follows the service's objects in small steps: rebuilds only what depends on a changed object.

#include <QList>
#include <QSet>
#include <QStringList>
#include <unordered_map>

#include "Platform/linux/Medium.h"
#include "Platform/linux/UnitNumbers.h"

class MediaCatalog {
 public:
  explicit MediaCatalog(UnitNumbers units) : _units(std::move(units)) {}
  MediaCatalog(MediaCatalog &&) = default;

  /// Reports that the objects at these paths came, went or changed. True if the catalog changed.
  bool update(const ServiceObjects &objects, const QSet<QString> &changed);

  // Null when there is no such medium. The pointer is valid until the next update.
  const Medium *named(const QString &bsdName) const { return _byName.value(bsdName); }
  const Medium *onDevice(quint64 device) const { return _byDevice.value(device); }

  /// By unit number, each whole disk before its partitions, these by slice number.
  const QStringList &names() const { return _names; }
  QStringList namesOnDisk(const QString &wholeDisk) const { return _namesOnDisk.value(wholeDisk); }

 private:
  bool isKnownDisk(const QString &path) const;
  QSet<QString> withDependants(const ServiceObjects &objects, QSet<QString> changed) const;
  bool updateDisks(const ServiceObjects &objects, const QSet<QString> &paths);
  bool updatePartitions(const ServiceObjects &objects, const QSet<QString> &paths);
  bool put(const QString &path, const std::optional<Medium> &medium);
  void arrange();

  UnitNumbers _units;
  std::unordered_map<QString, Medium> _media;  // by object path; references stay valid
  QHash<QString, const Medium *> _byName;
  QHash<quint64, const Medium *> _byDevice;
  QStringList _names;
  QHash<QString, QStringList> _namesOnDisk;
};
