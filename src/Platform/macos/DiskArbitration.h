#pragma once

// The disk arbitration service with Qt's types. Does not include the seam, whose constants have the
// same names as the service's own.

#include <QHash>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class DiskArbitration {
 public:
  /// The service's values under its own keys: texts (also for UUIDs), numbers, booleans, QUrls of
  /// local files, and a QVariantMap for the icon.
  using Record = QVariantHash;

  /// Called with the service's status when it refused, without one on success.
  using Completion = std::function<void(const std::optional<quint32> &status)>;

  DiskArbitration();
  DiskArbitration(const DiskArbitration &) = delete;
  DiskArbitration &operator=(const DiskArbitration &) = delete;

  /// Pending requests are never completed.
  ~DiskArbitration();

  /// Whether a session with the service can be opened.
  static bool answers();

  // Each call opens its own session and waits for the answer, which takes well below a millisecond.
  // Absent where the service knows nothing.

  static std::optional<Record> recordOfMedia(const QString &bsdName);
  static std::optional<Record> recordOfVolume(const QString &path);

  // The completion is called inside these functions when there is no service, else from the run loop
  // in its default mode. The service's password prompt delays only its own request.

  void mount(const QString &bsdName, const std::optional<QString> &path, Completion completion);
  void unmount(const QString &bsdName, bool isForced, Completion completion);

  /// Completes all pending requests.
  void answerAll(quint32 status);

 private:
  struct Request;
  using Question = std::function<void(Request &)>;

  void ask(const QString &bsdName, Completion completion, Question question);
  void drop(Request &request);

  std::vector<std::shared_ptr<Request>> _requests;
};
