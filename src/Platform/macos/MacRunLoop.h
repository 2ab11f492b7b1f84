#pragma once

#include "Platform/Platform.h"

/// The main thread's CFRunLoop. It serves Qt's timers and painting too, but no user input. The disk
/// arbitration service needs this loop.
class MacRunLoop final : public RunLoop {
 public:
  void run(const bool &finished) override;
  void stop() override;
  void servePending() override;

 private:
  int _waits = 0;
};
