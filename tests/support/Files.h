#pragma once

// Files of a test's own.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Makes its folder too, and returns the path. Fails the test when it cannot.
inline QString writeFile(const QString &path, const QByteArray &content) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
  return path;
}

/// Empty where there is none.
inline QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
