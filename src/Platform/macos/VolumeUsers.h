#pragma once

#include <QStringList>

/// As `Platform::processesUsing`.
QStringList processesUsingVolume(const QString &mountPoint);
