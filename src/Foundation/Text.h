#pragma once

// The few rules for texts that may be absent, and the readings that the program's own formats rest
// on.

#include <QString>
#include <optional>

/// A text, or nothing at all, which is another thing than the empty text.
using OptionalText = std::optional<QString>;

/// How "%@" prints a value: the text, or "(null)" where there is none.
QString printed(const OptionalText &text);

/// Whether both are there and the same. Two absent texts are not the same text.
bool areEqualTexts(const OptionalText &left, const OptionalText &right);

/// The number that a text begins with: leading blanks, a sign, decimal digits up to the first other
/// character. 0 where there are none; a number beyond 32 bits is the nearest one that fits.
qint32 leadingInteger(const QString &text);

/// What follows the last "/", trailing ones left out. "/" for "/" itself, "N/A" for "N/A", which is
/// no path.
QString lastPathComponent(const QString &path);

/// Whether a character from elsewhere may stand in a line of text: it is no control character, and
/// neither breaks lines, nor turns the direction of writing, nor means something else in rich text.
bool isHarmless(char32_t character);
