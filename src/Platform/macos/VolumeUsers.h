#pragma once

#include <QStringList>

/// As `VolumeFiles::findProcessesUsing`; blocks for some milliseconds.
QStringList processesUsingVolume(const QString &mountPoint);
