#pragma once

#include <QStringList>

/// As `VolumeFiles::findProcessesUsing`; blocks for some milliseconds.
QStringList programsUsingVolume(const QString &mountPoint);
