#pragma once

#include <QStringList>

/// "name (process number)" of the processes that have a file or folder of the volume mounted there
/// open, have it as working directory or run from it, as far as the kernel shows them to this user.
/// Does not access the volume itself, so a dead volume does not block the call.
QStringList processesUsingVolume(const QString &mountPoint);
