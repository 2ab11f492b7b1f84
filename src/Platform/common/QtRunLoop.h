#pragma once

// The run loop of every backend whose service answers through Qt's event loop.

#include "Platform/Platform.h"

class QEventLoop;

class QtRunLoop final : public RunLoop {
 public:
  void run(const bool &finished) override;
  void stop() override;
  void servePending() override;

 private:
  QEventLoop *_innermost = nullptr;
};
