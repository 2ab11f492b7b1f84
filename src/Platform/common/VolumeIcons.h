#pragma once

// Icon files on volumes, which anybody may have written.

#include <QCache>
#include <QImage>
#include <optional>

/// What an icon file was when it was read: its identity, size and time of change.
using FileStamp = QByteArray;

struct IconFile {
  /// Absent when there is nothing to read.
  std::optional<FileStamp> stamp;
  /// Absent when the file is still the one whose stamp was known.
  std::optional<QImage> image;
};

/// Reads and decodes a plain file of a sensible size; no link is followed.
IconFile readIconFile(const QString &path, const FileStamp &known);

/// Pictures by path, so that a file is decoded once for as long as it stays the same.
class VolumeIcons {
 public:
  /// Empty for a file that is not known.
  FileStamp known(const QString &path) const;

  /// The picture in a file that was read with the known stamp.
  std::optional<QImage> take(const QString &path, const IconFile &file);

 private:
  /// Volumes come and go, and nobody says which files will never be asked for again. In kilobytes.
  static constexpr qsizetype kMostRemembered = 256 * 1024;

  struct Known {
    FileStamp stamp;
    QImage image;
  };
  QCache<QString, Known> _icons{kMostRemembered};
};
