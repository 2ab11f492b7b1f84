#pragma once

// Says what becomes of volumes and media, whoever caused it, from the descriptions that the disk
// arbitration service keeps of them. Where a volume was mounted is remembered, because the
// description does not have it any more when the volume has gone.

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

  /// Anything else: media plugged or pulled, a volume renamed that is not mounted. Said once for
  /// all that happens in one turn of the event loop, this watcher's beginning included.
  void changed();

  /// The service has been started anew: what the old one was asked will not be answered. `changed`
  /// follows for whatever has become of volumes meanwhile.
  void serviceStarted();

 private:
  struct Session;

  void watch();

  void noteAppeared(const QString &media, const QString &path);
  void noteDisappeared(const QString &media, const QString &path);
  void noteName(const QString &media, const QString &path);
  void notePath(const QString &media, const QString &path);

  std::unique_ptr<Session> _session;
  QHash<QString, QString> _paths;  // by BSD name, of what is mounted
  bool _knowsMedia = false;        // whether those that were there at the beginning have been told
  QTimer _soon;
  std::unique_ptr<Observation> _starts;
};
