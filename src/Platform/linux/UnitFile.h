#pragma once

// The file through which the programs of one session share the unit numbers of disks.

#include <QHash>
#include <QString>

/// Numbers by the identities of disks. A number is never reused, even after its disk is gone.
struct Units {
  QHash<QString, int> numbers;
  int next = 0;
};

class UnitFile {
 public:
  /// `path` is empty where there is no place for the file. `boot` identifies the current boot of
  /// the machine: numbers of another boot are ignored.
  UnitFile(QString path, QString boot);

  /// Empty when there is no file, or one of another boot, or one that cannot be parsed.
  Units read() const;

  /// The bytes to write into the file.
  QByteArray bytesOf(const Units &units) const;

  const QString &path() const { return _path; }

 private:
  QString _path;
  QString _boot;
};
