#pragma once

#include <QString>
#include <optional>

/// Where a device is mounted, by the list of mounted file systems that /bin/df prints. The first
/// line that begins with the device's path decides, though it may be that of a longer path:
/// "/dev/disk0s1" finds "/dev/disk0s10". The mount point is what stands between the line's first
/// "% " and the next, or its end. Absent without such a line, or when that line has no "% ".
std::optional<QString> mountPointInDiskFree(const QString &output, const QString &devicePath);
