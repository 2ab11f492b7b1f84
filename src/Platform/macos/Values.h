#pragma once

// Converts between the system's values and Qt's.

#include <QString>
#include <QVariant>
#include <optional>

#include "Platform/macos/Owned.h"

Owned<CFStringRef> makeText(const QString &text);
Owned<CFURLRef> makeFolderUrl(const QString &path);

/// Absent for a null reference and for a value that is not a text.
std::optional<QString> textOf(CFTypeRef value);

/// The path in a file URL, without a trailing slash. Absent for a null reference and for a value
/// that is not a file URL.
std::optional<QString> pathOf(CFTypeRef value);

/// A QString, qint64 or bool, a QUrl of a local file, or the text of a UUID; invalid for a null
/// reference and for any other type.
QVariant valueOf(CFTypeRef value);

/// The value under a key of a dictionary, by `valueOf`. Invalid if it is not a dictionary.
QVariant valueIn(CFTypeRef dictionary, const QString &key);

/// The same value unconverted, not owned; null when the key is missing.
CFTypeRef referenceIn(CFTypeRef dictionary, const QString &key);
