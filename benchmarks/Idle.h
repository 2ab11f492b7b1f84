#pragma once

// How often the program wakes up, and what it costs, while there is nothing to do.

#include <QString>

class Report;

inline const QString kIdleClosed = QStringLiteral("switches while idle, popover closed");
inline const QString kIdleOpen = QStringLiteral("switches while idle, popover open");
inline const QString kIdleSmallest = QStringLiteral("switches while idle, smallest Qt program");

constexpr int kIdleSeconds = 60;

/// Adds the voluntary context switches of all threads of the program and of the smallest one in kIdleSeconds. Needs an
/// X server.
void measureIdle(int partitions, Report &report);
