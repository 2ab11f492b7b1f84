#pragma once

#include <chrono>

using Instant = std::chrono::steady_clock::time_point;

inline Instant now() {
  return std::chrono::steady_clock::now();
}

inline double millisecondsBetween(Instant start, Instant end) {
  return std::chrono::duration<double, std::milli>(end - start).count();
}
