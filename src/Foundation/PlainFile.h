#pragma once

// The files that the program reads and writes as a whole.
//
// Only plain files are read or replaced. A pipe, a device, a folder, or a link to one of these is
// refused: reading a pipe would block for ever, and replacing a device would break it for all
// programs.

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

#include "Foundation/Error.h"

enum class Links { Followed, Refused };

/// The bytes of a file, or the error: ENOENT where nothing exists, EFBIG for a file of more than
/// `mostBytes`. The path is in the file system's own bytes. Blocks for as long as the disk takes.
std::variant<QByteArray, Error> readPlainFile(const QByteArray &path, qint64 mostBytes,
                                              Links links = Links::Followed);

/// Replaces a file in one step: at any moment, even after a crash, it holds all of the old or all of
/// the new bytes. Of several writers of one file, in any process, one works at a time.
///
/// Until it is complete, the new file lies beside the old one, with ".new" added to the name. A killed
/// program may leave it behind; the next writer reuses it.
class PlainFileWriter {
 public:
  /// Makes the folder where it is missing. A link to a file stands for that file. Waits up to 200 ms
  /// for another writer.
  explicit PlainFileWriter(const QString &path);
  ~PlainFileWriter();
  PlainFileWriter(const PlainFileWriter &) = delete;
  PlainFileWriter &operator=(const PlainFileWriter &) = delete;

  /// Absent on success, or when the file holds these bytes already. Otherwise the file is unchanged,
  /// and the log says why. Call it once. Blocks until the bytes are on the disk.
  std::optional<Error> write(const QByteArray &bytes);

 private:
  std::optional<Error> prepare();
  std::optional<Error> openBeside();
  std::optional<Error> replace(const QByteArray &bytes);
  bool holdsAlready(const QByteArray &bytes) const;

  QByteArray _path;
  int _beside = -1;  // holds the lock
  std::optional<Error> _problem;
};
