#pragma once

// The amount of load and the random seed. KELDRA_LOAD=1 runs the whole load; otherwise a share runs that is
// short enough for the other tests. A failed run prints its seed; KELDRA_LOAD_SEED repeats that run.

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <random>

inline const bool kIsWholeLoad = qEnvironmentVariableIntValue("KELDRA_LOAD") == 1;

inline int loadCount(int whole, int share) {
  return kIsWholeLoad ? whole : share;
}

/// Only the whole load uses new seeds; among the other tests a failure must be repeatable.
inline quint64 loadSeed() {
  const QString seed = qEnvironmentVariable("KELDRA_LOAD_SEED");
  if (!seed.isEmpty()) return seed.toULongLong();
  return kIsWholeLoad ? std::random_device()() : 1;
}

/// For whoever runs the load tests by hand: a test that judged it would fail on a busy machine.
inline void printLongestGap(double milliseconds) {
  std::printf("[          ] longest time without serving events: %.1f ms\n", milliseconds);
}

/// The same seed gives the same numbers on every system.
class Chance {
 public:
  explicit Chance(quint64 seed) : _engine(seed) {}

  /// 0 to `count` - 1.
  int below(qsizetype count) { return static_cast<int>(_engine() % static_cast<quint64>(count)); }
  bool oneIn(int count) { return below(count) == 0; }
  template <typename List>
  const auto &oneOf(const List &list) {
    return list[below(list.size())];
  }

 private:
  std::mt19937_64 _engine;
};
