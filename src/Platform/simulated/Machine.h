#pragma once

// A machine as data: what a machine file says, and what a simulated platform changes as it runs.

#include <QString>
#include <QVector>
#include <chrono>
#include <optional>

#include "Platform/Dissenter.h"
#include "Platform/Platform.h"

/// What goes wrong at one request for a partition. "During" is when half of its delay is over.
enum class Mishap { DiskVanishesBefore, DiskVanishesDuring, DiskVanishesAfter, ServiceDies };

struct SimulatedPartition {
  int slice = 1;
  QString media;
  QString content;
  QString uuid;
  QString deviceNode;
  // The volume on it; one without a kind cannot be mounted.
  QString volumeKind;
  QString volumeName;
  QString volumeUUID;
  /// The processes that are said to use it.
  QStringList usedBy;
  std::optional<quint32> volumeSubtype;
  /// Absent while it is not mounted.
  std::optional<QString> mountPoint;
  // How the service answers: a refusal stands until it is taken away, a mishap happens once.
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
  /// Its picture; absent for the one that fits what else is known of it.
  std::optional<QVariantMap> icon;
  QVector<SimulatedPartition> partitions;

  QString bsdName() const { return QStringLiteral("disk%1").arg(unit); }
  QString bsdName(const SimulatedPartition &partition) const {
    return QStringLiteral("disk%1s%2").arg(unit).arg(partition.slice);
  }
};

struct Machine {
  QString productVersion = QStringLiteral("10.15");
  /// Whether its user is root.
  bool isPrivileged = true;
  DiskService::Presence presence = DiskService::Presence::Answering;
  /// How long a service that is asked at the start takes to answer; absent if it never does.
  std::optional<std::chrono::milliseconds> answersAfter;
  QVector<SimulatedDisk> disks;
};
