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

/// What a person who has asked for the end is made to wait at most, in seconds, also when the event
/// loop is not served.
constexpr unsigned kLongestEnd = 5;

int signalPipe[2] = {-1, -1};

/// Without waiting for whoever reads at the other end: a full pipe says all there is to say.
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
  // A program that was started by nohup outlives its terminal.
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

/// In the event loop, as often as it comes: the person may want to stay.
void quitOnSignals(AppDelegate &delegate) {
  if (!openSignalPipe()) return;
  auto *notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, &delegate);
  QObject::connect(notifier, &QSocketNotifier::activated, &delegate, [&delegate] {
    std::array<char, 64> signalsSoFar{};
    [[maybe_unused]] const auto count =
        read(signalPipe[1], signalsSoFar.data(), signalsSoFar.size());
    alarm(0);  // the delegate sees to it
    delegate.closeApp();
  });
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) catchSignal(number);
}

/// What the platform quits the program by, which would end it unasked.
class PlatformQuit : public QObject {
 public:
  explicit PlatformQuit(AppDelegate &delegate) : QObject(&delegate), _delegate(delegate) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject *watched, QEvent *event) override {
    if (watched != qApp || event->type() != QEvent::Quit) return false;
    // Who ends a session wants the answer now, and takes a later one for an objection.
    if (!_delegate.sessionMayEnd([] { return true; })) {
      event->ignore();
      return true;
    }
    // Qt ends its own loops, and not the wait of a row action.
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
                     // It starts by itself: one that a session manager starts as well would open the popover.
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
