#pragma once

// How much of a load runs, and from which seed. KELDRA_LOAD=1 asks for the whole of it; without, it
// is a share that fits among the other tests. KELDRA_LOAD_SEED repeats a run that has failed, which tells its seed.

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <random>

inline const bool kIsWholeLoad = qEnvironmentVariableIntValue("KELDRA_LOAD") == 1;

inline int loadCount(int whole, int share) {
  return kIsWholeLoad ? whole : share;
}

/// Only the whole load looks for news; among the other tests a failure must repeat by itself.
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
