#pragma once

#include <QString>

/// Writes what is still in memory of the file system of this device, which is mounted here, to its disk; of all
/// file systems if this one may not be opened. Gives 0 or a Unix error number. Blocks for as long as the disk
/// takes.
int flushVolume(const QString &mountPoint, quint64 device);
