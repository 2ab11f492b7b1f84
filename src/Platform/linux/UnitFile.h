#pragma once

// The file by which the programs of one session agree on the unit numbers of disks.

#include <QHash>
#include <QString>

/// Numbers by the identities of disks. A number is never used twice, not even after its disk is
/// gone.
struct Units {
  QHash<QString, int> numbers;
  int next = 0;
};

class UnitFile {
 public:
  /// `path` is absent where there is no place for the file. `boot` names the time since the machine
  /// was started: what was written in another one is void.
  UnitFile(QString path, QString boot);

  /// Empty when there is no file, or none from this boot, or none that makes sense.
  Units read() const;

  /// What is to be written into the file.
  QByteArray bytesOf(const Units &units) const;

  const QString &path() const { return _path; }

 private:
  QString _path;
  QString _boot;
};
