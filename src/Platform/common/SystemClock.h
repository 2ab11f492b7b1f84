#pragma once

#include "Foundation/Clock.h"

/// The machine's own steady clock.
class SystemClock final : public Clock {
 public:
  std::chrono::milliseconds now() const override {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
  }
};
