#pragma once

// Paths as texts, though they are bytes.
//
// A byte that is no UTF-8 is kept as a lone surrogate (U+DC80 to U+DCFF), which no other text holds: it is carried
// through lists and titles like any character, is never harmless when painted, and becomes the same byte again
// where a path leaves the program.

#include <QByteArray>
#include <QString>
#include <QUrl>

QString pathFromBytes(QByteArrayView bytes);
QByteArray bytesOfPath(const QString &path);

/// The local file's address, with the path's own bytes, and the path of such an address.
QUrl urlOfPath(const QString &path);
QString pathOfUrl(const QUrl &url);

/// An absolute path without empty and "." components and without "/" at its end. Links are not followed, and ".."
/// stays: what it means depends on them.
QString canonicalPath(const QString &path);
