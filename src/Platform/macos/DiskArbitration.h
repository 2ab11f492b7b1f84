#pragma once

// What the disk arbitration service is asked, in Qt's terms. Nothing of the seam is known here: its
// constants go by the same names as the service's own.

#include <QHash>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class DiskArbitration {
 public:
  /// What the service publishes under its own keys: texts, numbers, booleans, QUuids, QUrls of local
  /// files, and a QVariantMap for the icon.
  using Record = QVariantHash;

  /// Called with the service's status when it refused.
  using Completion = std::function<void(const std::optional<quint32> &status)>;

  DiskArbitration();
  DiskArbitration(const DiskArbitration &) = delete;
  DiskArbitration &operator=(const DiskArbitration &) = delete;

  /// Requests under way are not completed any more.
  ~DiskArbitration();

  /// Whether there is a service to open a session with.
  static bool answers();

  // Every question opens a session of its own and waits for the answer, which takes well below a
  // millisecond. Absent where the service knows nothing.

  static std::optional<Record> recordOfMedia(const QString &bsdName);
  static std::optional<Record> recordOfVolume(const QString &path);

  // The completion is called inside these when the service refuses at once, else from the run loop
  // in its default mode.

  void mount(const QString &bsdName, const std::optional<QString> &path, Completion completion);
  void unmount(const QString &bsdName, bool isForced, Completion completion);

 private:
  struct Request;
  struct Callbacks;

  std::shared_ptr<Request> begin(const QString &bsdName, Completion completion);
  std::shared_ptr<Request> take(const Request *request);

  std::vector<std::shared_ptr<Request>> _requests;
};
