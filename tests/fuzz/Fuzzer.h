#pragma once

// A fuzzer calls one function with bytes that it makes up, and learns from what they reach.

#include <QByteArray>
#include <cstdint>
#include <cstdlib>

/// Defined by each fuzzer. Crashes, hangs and what `mustHold` finds are what it is there to find.
void fuzz(const QByteArray &bytes);

/// Ends the fuzzer, which then keeps the bytes, unless the condition holds.
inline void mustHold(bool condition) {
  if (!condition) std::abort();
}
