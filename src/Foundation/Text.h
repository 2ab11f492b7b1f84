#pragma once

// The rules for texts that may be absent, and the parsing that the program's own formats need.

#include <QString>
#include <optional>

/// A text or nothing; an absent text is not an empty text.
using OptionalText = std::optional<QString>;

/// How "%@" prints a value: the text, or "(null)" where there is none.
QString printed(const OptionalText &text);

/// Whether both are present and equal. Two absent texts are not equal.
bool areEqualTexts(const OptionalText &left, const OptionalText &right);

/// The number at the start of a text: leading blanks, a sign, decimal digits up to the first other
/// character. 0 where there are none; a number beyond 32 bits becomes the nearest one that fits.
qint32 leadingInteger(const QString &text);

/// The part after the last "/", ignoring trailing ones. "/" for "/" itself, "N/A" for "N/A", which
/// is not a path.
QString lastPathComponent(const QString &path);

/// Whether a character from outside the program may be shown in a line of text: it is not a control
/// character, does not break the line or change the direction of writing, and has no special
/// meaning in rich text.
bool isHarmless(char32_t character);
