#pragma once

#include <QString>

/// Writes what is still in memory of the file system mounted here to its disk; of all file systems
/// if this one may not be opened. Blocks for as long as the disk takes. For any thread.
void flushVolume(const QString &mountPoint);
