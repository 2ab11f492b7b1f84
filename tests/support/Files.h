#pragma once

// Files for tests.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Creates the folder too, and returns the path. Fails the test when it cannot write.
inline QString writeFile(const QString &path, const QByteArray &content) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
  return path;
}

/// Empty if the file does not exist.
inline QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
