#pragma once

// Icon files on volumes. Their content is not trusted.

#include <QCache>
#include <QImage>
#include <optional>

/// The version of an icon file that was read: its identity, size and time of change.
using FileStamp = QByteArray;

struct IconFile {
  /// Absent when there is nothing to read.
  std::optional<FileStamp> stamp;
  /// Absent when the file still has the known stamp.
  std::optional<QImage> image;
};

/// Reads and decodes a plain file of a sensible size; does not follow a link.
IconFile readIconFile(const QString &path, const FileStamp &known);

/// Pictures by path, so that a file is decoded again only when it has changed.
class VolumeIcons {
 public:
  /// Empty for an unknown file.
  FileStamp known(const QString &path) const;

  /// The picture of a file that `readIconFile` has read with the known stamp.
  std::optional<QImage> take(const QString &path, const IconFile &file);

 private:
  /// In kilobytes. A limit, because files of removed volumes are never asked for again.
  static constexpr qsizetype kMostRemembered = 256 * 1024;

  struct Known {
    FileStamp stamp;
    QImage image;
  };
  QCache<QString, Known> _icons{kMostRemembered};
};
