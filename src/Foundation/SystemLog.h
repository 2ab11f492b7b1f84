#pragma once

#include <QString>

/// Writes one line to the system's log and to standard error. Control characters, which a disk's
/// name may contain, are written as escapes, so that a name cannot forge a second line.
void systemLog(const QString &text);
