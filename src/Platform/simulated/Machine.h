#pragma once

// A machine as data: read from a machine file, and changed by a running simulated platform.

#include <QString>
#include <QVector>
#include <chrono>
#include <optional>

#include "Platform/Dissenter.h"
#include "Platform/Platform.h"

/// A failure at one request for a partition. "During" is after half of the partition's delay.
enum class Mishap { DiskVanishesBefore, DiskVanishesDuring, DiskVanishesAfter, ServiceDies };

struct SimulatedPartition {
  int slice = 1;
  QString media;
  QString content;
  QString uuid;
  QString deviceNode;
  // The volume on the partition; without a kind it cannot be mounted.
  QString volumeKind;
  QString volumeName;
  QString volumeUUID;
  /// The processes that are reported to use the volume.
  QStringList usedBy;
  std::optional<quint32> volumeSubtype;
  /// Absent while it is not mounted.
  std::optional<QString> mountPoint;
  // The service's answers: a refusal stays until it is removed, a mishap happens once.
  std::optional<DissenterStatus> mountRefusal;
  std::optional<DissenterStatus> unmountRefusal;
  std::chrono::milliseconds delay{0};
  std::optional<Mishap> mishap;
};

struct SimulatedDisk {
  int unit = 0;
  QString media;
  QString scheme;
  QString uuid;
  QString protocol;
  QString deviceNode;
  bool isWritable = true;
  bool isEjectable = false;
  bool isInternal = false;
  std::optional<quint32> physicalBlockSize;
  std::optional<quint32> logicalBlockSize;
  /// The disk's picture; absent for the one that fits its other properties.
  std::optional<QVariantMap> icon;
  QVector<SimulatedPartition> partitions;

  QString bsdName() const { return QStringLiteral("disk%1").arg(unit); }
  QString bsdName(const SimulatedPartition &partition) const {
    return QStringLiteral("disk%1s%2").arg(unit).arg(partition.slice);
  }
};

struct Machine {
  QString productVersion = QStringLiteral("10.15");
  /// Whether the user is root.
  bool isPrivileged = true;
  DiskService::Presence presence = DiskService::Presence::Answering;
  /// How long a service that is "asking" at the start takes to answer; absent if it never does.
  std::optional<std::chrono::milliseconds> answersAfter;
  QVector<SimulatedDisk> disks;
};
