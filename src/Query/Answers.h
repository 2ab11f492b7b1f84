#pragma once

// How an answer is printed. Harmful characters of names are escaped as JSON escapes them.

#include <QString>

struct Operation;
class QJsonValue;

/// Lines for a person: a text in quotes, so that the text "absent" is not taken for the word absent;
/// a text that stands for a failure is marked; "YES" or "NO".
QString plainAnswer(const Operation &operation, const QJsonValue &answer);

/// One JSON object on a line, with the keys "operation", "argument" (if it takes one), "answer"
/// (null when absent) and "sentinel" (whether it is a text that stands for a failure).
QString jsonAnswer(const Operation &operation, const QString &argument, const QJsonValue &answer);

/// The text, in quotes.
QString quoted(const QString &text);
