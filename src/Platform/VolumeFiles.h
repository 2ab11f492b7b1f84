#pragma once

// What lies on mounted volumes, their mount points included: a role of the seam (see Platform.h).
//
// A volume may answer late or never: its disk is dying, its server is gone. On Linux, all that is asked in one
// turn of the event loop waits 100 ms together, and a volume that was late is not waited for again until it has
// answered. Its answer is then kept for a notification without a path, which is posted at once: whoever asks the
// same again because of it has the answer. On other systems questions block for as long as the volume takes.

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

struct FolderEntry {
  QString name;
  /// A link to a folder is none.
  bool isFolder = false;
};

struct LookAtPath {
  enum class Access {
    Unknown,  // the volume has not answered in time
    Nothing,  // nothing is there
    Closed,   // it is no folder that this user may look into, or lies in one that he may not
    Open,
  };
  Access access = Access::Unknown;
  /// Where it is when all links are followed. Empty unless it can be told that something is there.
  QString realPath;
};

class VolumeFiles {
 public:
  enum class Parents { Make, Leave };

  virtual ~VolumeFiles() = default;

  virtual LookAtPath look(const QString &path) = 0;

  /// Hidden ones too, in no order. Absent when the folder cannot be listed, or has not answered in time.
  virtual std::optional<QList<FolderEntry>> entries(const QString &folder) = 0;

  /// Nothing happens when it is there already or cannot be made.
  virtual void makeFolder(const QString &path, Parents parents) = 0;

  /// The largest picture in an icon file, null when what the file holds does not decode. Absent when there is
  /// nothing to read: no such file, a link, no plain file, one that this user may not read or far larger than
  /// any icon, or when the volume has not answered in time.
  virtual std::optional<QImage> image(const QString &path) = 0;

  /// Hands out "name (process number)" of each process that has a file or folder below this mount point open,
  /// runs from there or works there, as far as the system lets this user know. `answer` is called once, inside
  /// the call or from the event loop, and not at all when this object ends before that.
  virtual void findProcessesUsing(const QString &mountPoint,
                                  std::function<void(const QStringList &)> answer) = 0;
};
