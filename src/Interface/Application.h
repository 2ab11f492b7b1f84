#pragma once

// The program as a whole, in what it says to the person in dialogs. They block until they are
// answered, and need no other window to be there.

#include <QStringList>

struct Error;

/// Whether the program ends when it is asked to.
enum class TerminateReply { Cancel = 0, Now = 1 };

class Application {
 public:
  /// What `runAlert` answers for the first button; the second is one more, and so on.
  static constexpr int kAlertFirstButtonReturn = 1000;

  Application() = default;
  Application(const Application &) = delete;
  Application &operator=(const Application &) = delete;
  virtual ~Application() = default;

  /// Tells the person of an error. Whether it has been dealt with, so that there is nothing more to
  /// do about it; that the person knows is not enough.
  virtual bool presentError(const Error &error);

  /// Asks the person. Which button was chosen; closing the alert chooses the last.
  static int runAlert(const QString &message, const QString &informative,
                      const QStringList &buttons);
};
