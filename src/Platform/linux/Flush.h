#pragma once

#include <QString>

/// Writes the cached data of this device's file system, mounted at `mountPoint`, to the disk; the data of all
/// file systems if this one may not be opened. Returns 0 or a Unix error number. Blocks for as long as the disk
/// takes.
int flushVolume(const QString &mountPoint, quint64 device);
