#pragma once

// The dialogs of the program as a whole. They block until they are answered, and need no other
// window.

#include <QStringList>

struct Error;

/// Whether the program ends when it is asked to.
enum class TerminateReply { Cancel = 0, Now = 1 };

class Application {
 public:
  /// The value that `runAlert` returns for the first button; each further button is one more.
  static constexpr int kAlertFirstButtonReturn = 1000;

  Application() = default;
  Application(const Application &) = delete;
  Application &operator=(const Application &) = delete;
  virtual ~Application() = default;

  /// Shows an error. True when the error has been dealt with, so that there is nothing more to do;
  /// showing it is not enough for that.
  virtual bool presentError(const Error &error);

  /// Shows an alert and returns the chosen button; closing the alert chooses the last one.
  static int runAlert(const QString &message, const QString &informative,
                      const QStringList &buttons);
};
