#pragma once

// One object of the disk service as it was announced: its interfaces and their properties.
//
// Values from another program are used only if they have the right type: a property of a wrong
// type, or of an interface that the object does not have, is absent.

#include <QHash>
#include <QMap>
#include <QString>
#include <QVariantMap>
#include <optional>

inline const QString kBlockInterface = QStringLiteral("org.freedesktop.UDisks2.Block");
inline const QString kPartitionInterface = QStringLiteral("org.freedesktop.UDisks2.Partition");
inline const QString kPartitionTableInterface =
    QStringLiteral("org.freedesktop.UDisks2.PartitionTable");
inline const QString kFilesystemInterface = QStringLiteral("org.freedesktop.UDisks2.Filesystem");
inline const QString kLoopInterface = QStringLiteral("org.freedesktop.UDisks2.Loop");
inline const QString kDriveInterface = QStringLiteral("org.freedesktop.UDisks2.Drive");

/// As D-Bus delivers them: properties by interface.
using InterfaceMap = QMap<QString, QVariantMap>;

class ServiceObject {
 public:
  bool has(const QString &interface) const { return _interfaces.contains(interface); }
  bool isEmpty() const { return _interfaces.isEmpty(); }

  std::optional<QString> text(const QString &interface, const QString &property) const;
  std::optional<quint64> number(const QString &interface, const QString &property) const;
  /// False when absent.
  bool flag(const QString &interface, const QString &property) const;
  /// A file's name, which the service sends as bytes with a NUL at the end. Empty when absent.
  QString fileName(const QString &interface, const QString &property) const;
  /// The path of another object. Empty when absent or "/".
  QString link(const QString &interface, const QString &property) const;

  /// The kernel's number of a block device; 0 when absent.
  quint64 device() const {
    return number(kBlockInterface, QStringLiteral("DeviceNumber")).value_or(0);
  }

  void add(const InterfaceMap &interfaces);
  void remove(const QStringList &interfaces);
  /// Does nothing if the object has no such interface.
  void change(const QString &interface, const QVariantMap &changed, const QStringList &invalidated);

  bool operator==(const ServiceObject &) const = default;

 private:
  QVariant value(const QString &interface, const QString &property) const;

  QHash<QString, QVariantMap> _interfaces;
};

/// All objects of the service by their paths.
using ServiceObjects = QHash<QString, ServiceObject>;
