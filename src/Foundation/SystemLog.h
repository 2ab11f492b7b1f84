#pragma once

#include <QString>

/// Writes one line to the system's log and to standard error. Control characters, which a disk's
/// name may hold, are written as escapes, so that nobody can forge a second line.
void systemLog(const QString &text);
