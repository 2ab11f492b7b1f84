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
  /// What the service publishes under its own keys: texts, which UUIDs are too, numbers, booleans,
  /// QUrls of local files, and a QVariantMap for the icon.
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

  // The completion is called inside these when there is nobody to ask, else from the run loop in its
  // default mode. A password prompt of the service's keeps only the request waiting.

  void mount(const QString &bsdName, const std::optional<QString> &path, Completion completion);
  void unmount(const QString &bsdName, bool isForced, Completion completion);

  /// Completes all requests that are under way.
  void answerAll(quint32 status);

 private:
  struct Request;
  using Question = std::function<void(Request &)>;

  void ask(const QString &bsdName, Completion completion, Question question);
  void drop(Request &request);

  std::vector<std::shared_ptr<Request>> _requests;
};
