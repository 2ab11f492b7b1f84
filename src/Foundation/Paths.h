#pragma once

// Paths as texts, though they are bytes.
//
// A byte that is not UTF-8 is kept as a lone surrogate (U+DC80 to U+DCFF), which no other text contains. It
// passes through lists and titles like any character, never counts as harmless when painted, and becomes the
// same byte again where a path leaves the program.

#include <QByteArray>
#include <QString>
#include <QUrl>

QString pathFromBytes(QByteArrayView bytes);
QByteArray bytesOfPath(const QString &path);

/// The URL of a local file, made of the path's own bytes, and the path of such a URL.
QUrl urlOfPath(const QString &path);
QString pathOfUrl(const QUrl &url);

/// An absolute path without empty and "." components and without a trailing "/". Links are not followed, and
/// ".." stays, because its meaning depends on the links.
QString canonicalPath(const QString &path);
