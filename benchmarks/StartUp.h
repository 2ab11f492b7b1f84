#pragma once

// How long a program takes until its item is registered with the tray, and its memory at that time.
// This process is the tray, on the session bus.

#include <QObject>
#include <QProcess>
#include <optional>

#include "Time.h"

class Report;

inline const QString kStartUp = QStringLiteral("start-up until the item is registered");
inline const QString kSmallestStartUp = QStringLiteral("smallest Qt program's");
inline const QString kResident = QStringLiteral("resident memory then, MB");
inline const QString kSmallestResident = QStringLiteral("smallest Qt program's, MB");

/// The service where items register, as in a panel.
class Tray : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
  Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
  Q_PROPERTY(int ProtocolVersion READ protocolVersion)

 public:
  /// Throws std::runtime_error where there is no session bus, or another tray on it.
  Tray();

  bool hasHost() const { return true; }
  int protocolVersion() const { return 0; }

  void forget() { _registered.reset(); }
  /// The first registration since `forget`.
  std::optional<Instant> registered() const { return _registered; }

 public slots:
  void RegisterStatusNotifierItem(const QString &item);

 signals:
  void StatusNotifierHostRegistered();

 private:
  std::optional<Instant> _registered;
};

/// A program of this build on the X server, with its item in the tray. The destructor ends the process.
class TrayProgram {
 public:
  /// Returns once the item is registered. Throws std::runtime_error if that takes too long.
  TrayProgram(Tray &tray, const QString &program);
  ~TrayProgram();
  TrayProgram(const TrayProgram &) = delete;
  TrayProgram &operator=(const TrayProgram &) = delete;

  qint64 process() const { return _process.processId(); }
  double millisecondsToItem() const { return _millisecondsToItem; }

 private:
  QProcess _process;
  double _millisecondsToItem = 0;
};

/// Adds the times and the memory of the program and of the smallest one, alternating, for this number
/// of partitions. Needs an X server.
void measureStartUp(int partitions, Report &report);
