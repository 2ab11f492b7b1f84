#pragma once

class QTextStream;
class Report;

/// One line for each performance aim: met or missed, and the measured figure.
void printAims(QTextStream &out, const Report &report);
