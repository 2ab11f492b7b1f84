#pragma once

// What the program's table ought to show of a simulated machine, by rules of its own that ask the
// program nothing.

#include <QMap>

#include "Platform/simulated/Machine.h"
#include "support/TestMachine.h"

/// The rows in words, by BSD name, in the order of the table.
QMap<QString, QString> expectedRows(const Machine &machine, bool showsAll);

/// The first difference between the table that a person sees and the rows that it ought to have;
/// empty when there is none. Scrolls the table.
QString differenceOf(const TestMachine &program, const QStringList &expected);
