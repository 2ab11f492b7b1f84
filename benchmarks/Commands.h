#pragma once

// Runs other programs until they exit. Blocks without serving the event loop. When a program fails,
// throws std::runtime_error with its error output.

#include <QStringList>

/// Returns the standard output.
QByteArray outputOf(const QString &program, const QStringList &arguments,
                    const QByteArray &input = {});

/// How long the program ran, in milliseconds. The output is discarded, so it cannot block.
double millisecondsOf(const QString &program, const QStringList &arguments);
