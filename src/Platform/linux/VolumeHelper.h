#pragma once

// A child process that reads volumes, so that the program itself never blocks on them.
//
// A process that waits in the kernel for a dead disk cannot be ended, not even by SIGKILL. The helper process
// holds nothing that others need: no lock, no connection, no output. It is the program's own executable,
// started with an environment variable, and exits when its socket closes.

#include <QByteArray>
#include <QPointer>
#include <QSocketNotifier>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

class VolumeHelper {
 public:
  /// Called with an empty answer when the process has exited without answering.
  using Handler = std::function<void(const QByteArray &answer)>;

  /// A helper that cannot be started counts as ended.
  VolumeHelper();
  /// Kills the process without waiting. Handlers of pending questions are not called.
  ~VolumeHelper();
  VolumeHelper(const VolumeHelper &) = delete;
  VolumeHelper &operator=(const VolumeHelper &) = delete;

  bool hasEnded() const { return _socket < 0; }
  bool isIdle() const { return _handlers.empty(); }

  /// Questions are answered in order, from the event loop or from `serve`. Not after `hasEnded`.
  void ask(const QByteArray &question, Handler handler);

  /// Gives up the process: pending questions get an empty answer, and the process exits when it can.
  void end();

  /// Blocks until all questions are answered, `atMost` that long.
  void serve(std::chrono::milliseconds atMost);

 private:
  void takeAnswers();

  int _socket = -1;
  QPointer<QSocketNotifier> _process;  // reports the exit; null afterwards
  std::unique_ptr<QSocketNotifier> _answers;
  QByteArray _received;
  std::deque<Handler> _handlers;
};

/// Runs the helper's work in a process started as a helper; absent in any other. Called first in
/// `main`.
std::optional<int> runAsVolumeHelper();
