#pragma once

class QTextStream;
class Report;

/// One line for each aim that Keldra is held to: met or missed, and by what figure.
void printAims(QTextStream &out, const Report &report);
