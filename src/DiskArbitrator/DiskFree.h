#pragma once

#include <QString>
#include <optional>

/// Where a device is mounted, by the list of mounted file systems that /bin/df prints. The first
/// line that begins with the device's path decides, even if the line has a longer path:
/// "/dev/disk0s1" finds "/dev/disk0s10". The mount point is the text between the line's first "% "
/// and the next, or the line's end. Absent without such a line, or when that line has no "% ".
std::optional<QString> mountPointInDiskFree(const QString &output, const QString &devicePath);
