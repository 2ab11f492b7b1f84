#pragma once

// Other programs, run to their end. All of this blocks without serving the event loop, and throws
// std::runtime_error with what the program said when it fails.

#include <QStringList>

/// Gives what the program wrote on its standard output.
QByteArray outputOf(const QString &program, const QStringList &arguments,
                    const QByteArray &input = {});

/// How long the program ran, in milliseconds. Nobody reads its output, so that it waits for nobody.
double millisecondsOf(const QString &program, const QStringList &arguments);
