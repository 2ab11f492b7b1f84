#include "Application/End.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>

#include "AppDelegate/AppDelegate.h"

namespace {

/// How long a user who has asked to quit waits at most, in seconds, also when the event loop is not
/// served.
constexpr unsigned kLongestEnd = 5;

int signalPipe[2] = {-1, -1};

/// Non-blocking, because a signal handler writes to it. When the pipe is full, the reader has been
/// woken already.
bool openSignalPipe() {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) return false;
  for (const int end : signalPipe) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return true;
}

void catchSignal(int number) {
  struct sigaction action = {};
  // Under nohup, SIGHUP is ignored and stays so.
  if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = [](int) {
    const int interrupted = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPipe[0], &byte, 1);
    endSoon();
    errno = interrupted;
  };
  sigaction(number, &action, nullptr);
}

/// Handled in the event loop, and each signal anew: the user may cancel the first request.
void quitOnSignals(AppDelegate &delegate) {
  if (!openSignalPipe()) return;
  auto *notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, &delegate);
  QObject::connect(notifier, &QSocketNotifier::activated, &delegate, [&delegate] {
    std::array<char, 64> signalsSoFar{};
    [[maybe_unused]] const auto count =
        read(signalPipe[1], signalsSoFar.data(), signalsSoFar.size());
    alarm(0);  // the delegate has a time limit of its own
    delegate.closeApp();
  });
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) catchSignal(number);
}

/// Handles the platform's own Quit, which would end the program without asking.
class PlatformQuit : public QObject {
 public:
  explicit PlatformQuit(AppDelegate &delegate) : QObject(&delegate), _delegate(delegate) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject *watched, QEvent *event) override {
    if (watched != qApp || event->type() != QEvent::Quit) return false;
    // The sender of a session's end needs the answer now, and takes a late one for a refusal.
    if (!_delegate.sessionMayEnd([] { return true; })) {
      event->ignore();
      return true;
    }
    // Qt ends its own event loops, but not the wait of a row action.
    QTimer::singleShot(std::chrono::seconds(kLongestEnd), [] { std::_Exit(EXIT_SUCCESS); });
    return false;
  }

 private:
  AppDelegate &_delegate;
};

}  // namespace

void quitWithTheSystem(AppDelegate &delegate) {
  QObject::connect(&delegate, &AppDelegate::endsInRowAction, [] { std::_Exit(EXIT_SUCCESS); });
  quitOnSignals(delegate);
  new PlatformQuit(delegate);
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &delegate,
                   [&delegate](QSessionManager &session) {
                     // The program has a login item. An instance that a session manager restarted as well
                     // would open the popover.
                     session.setRestartHint(QSessionManager::RestartNever);
                     const auto mayAsk = [&session] { return session.allowsInteraction(); };
                     if (!delegate.sessionMayEnd(mayAsk)) session.cancel();
                   });
  QObject::connect(
      qApp, &QGuiApplication::saveStateRequest, &delegate,
      [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
}

void endSoon() {
  alarm(kLongestEnd);
}
