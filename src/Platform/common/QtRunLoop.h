#pragma once

// The run loop of every backend whose service answers through Qt's event loop.

#include <chrono>

#include "Platform/Platform.h"

class QEventLoop;

class QtRunLoop final : public RunLoop {
 public:
  static constexpr std::chrono::milliseconds kMoment{20};

  /// `moment` is how long `servePending` takes.
  explicit QtRunLoop(std::chrono::milliseconds moment = kMoment) : _moment(moment) {}

  void run(const bool &finished) override;
  void stop() override;
  void servePending() override;

 private:
  static constexpr std::chrono::milliseconds kLookAgain{50};

  std::chrono::milliseconds _moment;
  QEventLoop *_innermost = nullptr;
};
