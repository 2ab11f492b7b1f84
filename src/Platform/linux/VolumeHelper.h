#pragma once

// A process of the program's own that looks at volumes, so that the program never does.
//
// What waits for a dead disk in the kernel cannot be ended, not even by force, and keeps its whole process with
// it. This one has nothing that anybody would miss: no lock, no connection, no output. It is the program's own
// executable, told by an environment variable what it is, and ends when its socket does.

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
  /// Called with an empty answer when the process has ended without one.
  using Handler = std::function<void(const QByteArray &answer)>;

  /// A helper that cannot be started counts as one that has ended.
  VolumeHelper();
  /// Ends the process by force and waits for nothing; questions that are not answered go unanswered.
  ~VolumeHelper();
  VolumeHelper(const VolumeHelper &) = delete;
  VolumeHelper &operator=(const VolumeHelper &) = delete;

  bool hasEnded() const { return _socket < 0; }
  bool isIdle() const { return _handlers.empty(); }

  /// Questions are answered one after another, from the event loop or from `serve`. Not for one that has ended.
  void ask(const QByteArray &question, Handler handler);

  /// Has nothing more to do with it: what is not answered yet gets an empty answer, and it goes when it can.
  void end();

  /// Blocks until all has been answered, but for this time at most.
  void serve(std::chrono::milliseconds atMost);

 private:
  void takeAnswers();

  int _socket = -1;
  QPointer<QSocketNotifier> _process;  // tells of its end; null afterwards
  std::unique_ptr<QSocketNotifier> _answers;
  QByteArray _received;
  std::deque<Handler> _handlers;
};

/// What such a process does; absent in every other. Called first in `main`.
std::optional<int> runAsVolumeHelper();
