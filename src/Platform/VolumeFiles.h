#pragma once

// Files on mounted volumes, including the mount points: a role of the seam (see Platform.h).
//
// A volume may answer late or never, because its disk fails or its server is gone. On Linux, all calls in one
// turn of the event loop wait 100 ms together, and a late volume is not waited for again until it has answered.
// That answer is kept during a notification without a path, which is posted at once: a caller that repeats its
// question then gets the answer. On other systems calls block for as long as the volume takes.

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

struct FolderEntry {
  QString name;
  /// False for a link to a folder.
  bool isFolder = false;
};

struct LookAtPath {
  enum class Access {
    Unknown,  // the volume has not answered in time
    Nothing,  // nothing is there
    Closed,   // not a folder that this user may read, or inside one that is closed
    Open,
  };
  Access access = Access::Unknown;
  /// The path with all links resolved. Empty unless something is known to exist there.
  QString realPath;
};

class VolumeFiles {
 public:
  enum class Parents { Make, Leave };

  virtual ~VolumeFiles() = default;

  virtual LookAtPath look(const QString &path) = 0;

  /// Includes hidden entries; in no order. Absent when the folder cannot be listed, or has not answered
  /// in time.
  virtual std::optional<QList<FolderEntry>> entries(const QString &folder) = 0;

  /// Does nothing when the folder exists already or cannot be made.
  virtual void makeFolder(const QString &path, Parents parents) = 0;

  /// The largest picture in an icon file; null when the content does not decode. Absent when there is nothing
  /// to read: no such file, a link, not a plain file, one that this user may not read or far larger than any
  /// icon, or when the volume has not answered in time.
  virtual std::optional<QImage> image(const QString &path) = 0;

  /// Gives `answer` "name (process number)" of each process that has a file or folder below this mount point
  /// open, runs from there or has its working directory there, as far as the system lets this user know.
  /// `answer` is called once, inside the call or from the event loop, but not after this object is destroyed.
  virtual void findProcessesUsing(const QString &mountPoint,
                                  std::function<void(const QStringList &)> answer) = 0;
};
