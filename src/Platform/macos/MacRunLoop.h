#pragma once

#include "Platform/Platform.h"

/// The main thread's CFRunLoop, which serves Qt's timers and painting too, but nothing that a
/// person does: the disk arbitration service answers to nothing else.
class MacRunLoop final : public RunLoop {
 public:
  void run(const bool &finished) override;
  void stop() override;
  void servePending() override;

 private:
  int _waits = 0;
};
