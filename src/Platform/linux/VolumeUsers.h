#pragma once

#include <QStringList>

/// "name (process number)" of the processes that have a file or folder of the volume mounted there
/// open, work in it or run from it, as far as the kernel lets this user look. Nothing on the volume
/// itself is touched, so that a dead one holds nobody up.
QStringList processesUsingVolume(const QString &mountPoint);
