#pragma once

#include <chrono>

/// Time that only goes forward.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::chrono::milliseconds now() const = 0;
};
