#pragma once

// Announces changes of volumes and media, whatever their cause, from the descriptions of the disk
// arbitration service. Mount points are stored, because the description of an unmounted volume has
// none.

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

class Observation;

class VolumeWatcher final : public QObject {
  Q_OBJECT

 public:
  /// Watches in every mode of the main run loop, also while a modal window is open.
  VolumeWatcher();
  ~VolumeWatcher() override;

 signals:
  void mounted(const QString &path);
  void unmounted(const QString &path);
  void renamed(const QString &path);

  /// Any other change: media plugged or pulled, or an unmounted volume renamed. Sent once for all
  /// changes in one turn of the event loop, including the start of this watcher.
  void changed();

  /// The service has restarted: calls to the old one will not be answered. `changed` follows for
  /// changes of volumes in the meantime.
  void serviceStarted();

 private:
  struct Session;

  void watch();

  void noteAppeared(const QString &media, const QString &path);
  void noteDisappeared(const QString &media, const QString &path);
  void noteName(const QString &media, const QString &path);
  void notePath(const QString &media, const QString &path);

  std::unique_ptr<Session> _session;
  QHash<QString, QString> _paths;  // by BSD name, of mounted media
  bool _knowsMedia = false;        // whether the initial media have been announced
  QTimer _soon;
  std::unique_ptr<Observation> _starts;
};
