#pragma once

// The system's values as Qt's, and the other way round.

#include <QString>
#include <QVariant>
#include <optional>

#include "Platform/macos/Owned.h"

Owned<CFStringRef> makeText(const QString &text);
Owned<CFURLRef> makeFolderUrl(const QString &path);

/// Absent for a null reference and for what is no text.
std::optional<QString> textOf(CFTypeRef value);

/// The path in a file URL, without a slash at its end. Absent for a null reference and for what is
/// no such URL.
std::optional<QString> pathOf(CFTypeRef value);

/// A QString, qint64 or bool, a QUrl of a local file, or the text of a UUID; invalid for a null
/// reference and for any other type.
QVariant valueOf(CFTypeRef value);

/// What a dictionary has under a key, by `valueOf`. Invalid for what is no dictionary.
QVariant valueIn(CFTypeRef dictionary, const QString &key);

/// The same as it stands, not owned; null when it is not there.
CFTypeRef referenceIn(CFTypeRef dictionary, const QString &key);
