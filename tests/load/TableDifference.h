#pragma once

#include "load/Model.h"
#include "support/TestMachine.h"

/// The first difference between the table that a person sees and the rows that it ought to have;
/// empty when there is none. Scrolls the table.
QString differenceOf(const TestMachine &program, const QVector<ModelRow> &expected);
