#include "Foundation/PlainFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <cerrno>
#include <cstdio>

#include "Foundation/SystemLog.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kLongestWait{200};
constexpr std::chrono::milliseconds kPause{5};
constexpr mode_t kForAll = 0666;  // limited by the user's umask
constexpr mode_t kPermissions = 07777;

/// Opening must not block on a pipe or a device, even if one replaces the file just before the
/// open.
constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

Error noPlainFile() {
  return {kPOSIXErrorDomain, EINVAL, u"It is no plain file"_s};
}

class Descriptor {
 public:
  explicit Descriptor(int number) : _number(number) {}
  ~Descriptor() {
    if (_number >= 0) close(_number);
  }
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  int number() const { return _number; }

 private:
  int _number;
};

/// True when all bytes could be read.
bool readAll(int descriptor, QByteArray &bytes) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t count =
        read(descriptor, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) break;
    done += count;
  }
  return done == bytes.size();
}

bool writeAll(int descriptor, const QByteArray &bytes) {
  for (qsizetype done = 0; done < bytes.size();) {
    const ssize_t count =
        write(descriptor, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
    if (count < 0 && errno != EINTR) return false;
    done += std::max<ssize_t>(count, 0);
  }
  return true;
}

/// A file's new name is safe only when the folder is on the disk too.
void syncFolder(const QByteArray &path) {
  const QByteArray folder = path.first(path.lastIndexOf('/') + 1);
  const Descriptor descriptor(open(folder.constData(), O_RDONLY | kFlags));
  if (descriptor.number() >= 0) fsync(descriptor.number());
}

bool isStillAt(const QByteArray &path, const struct stat &opened) {
  struct stat found = {};
  return lstat(path.constData(), &found) == 0 && found.st_ino == opened.st_ino &&
         found.st_dev == opened.st_dev;
}

}  // namespace

std::variant<QByteArray, Error> readPlainFile(const QByteArray &path, qint64 mostBytes,
                                              Links links) {
  // Checked before the open as well: opening alone has an effect on some devices.
  struct stat status = {};
  const bool isFollowed = links == Links::Followed;
  const auto look = isFollowed ? stat : lstat;
  if (look(path.constData(), &status) != 0) return posixError(errno);
  if (!S_ISREG(status.st_mode)) return noPlainFile();
  const Descriptor file(open(path.constData(), O_RDONLY | kFlags | (isFollowed ? 0 : O_NOFOLLOW)));
  if (file.number() < 0 || fstat(file.number(), &status) != 0) return posixError(errno);
  if (!S_ISREG(status.st_mode)) return noPlainFile();
  if (status.st_size > mostBytes) return posixError(EFBIG);
  QByteArray bytes(status.st_size, Qt::Uninitialized);
  if (!readAll(file.number(), bytes)) return posixError(EIO);
  return bytes;
}

PlainFileWriter::PlainFileWriter(const QString &path)
    : _path(QFile::encodeName(QDir().absoluteFilePath(path))), _problem(prepare()) {}

PlainFileWriter::~PlainFileWriter() {
  if (_beside < 0) return;
  unlink((_path + ".new").constData());
  close(_beside);
}

std::optional<Error> PlainFileWriter::prepare() {
  struct stat status = {};
  if (stat(_path.constData(), &status) == 0) {
    if (!S_ISREG(status.st_mode)) return noPlainFile();
    const QString target = QFileInfo(QFile::decodeName(_path)).canonicalFilePath();
    _path = QFile::encodeName(target);
  } else if (errno != ENOENT) {
    return posixError(errno);
  } else if (lstat(_path.constData(), &status) == 0) {
    return noPlainFile();  // a link that leads nowhere
  } else {
    QDir().mkpath(QFileInfo(QFile::decodeName(_path)).path());
  }
  return openBeside();
}

std::optional<Error> PlainFileWriter::openBeside() {
  const QByteArray name = _path + ".new";
  QDeadlineTimer deadline(kLongestWait);
  for (;;) {
    _beside = open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | kFlags, kForAll);
    struct stat status = {};
    if (_beside < 0 || fstat(_beside, &status) != 0) return posixError(errno);
    const bool isPlain = S_ISREG(status.st_mode) && status.st_nlink <= 1;
    // The previous holder of the lock may have renamed or removed the file.
    if (isPlain && flock(_beside, LOCK_EX | LOCK_NB) == 0 && isStillAt(name, status)) return {};
    close(_beside);
    _beside = -1;
    if (!isPlain) return noPlainFile();
    if (deadline.hasExpired()) return posixError(EWOULDBLOCK);
    QThread::msleep(kPause.count());
  }
}

bool PlainFileWriter::holdsAlready(const QByteArray &bytes) const {
  const auto content = readPlainFile(_path, bytes.size());
  const auto *held = std::get_if<QByteArray>(&content);
  return held != nullptr && *held == bytes;
}

std::optional<Error> PlainFileWriter::replace(const QByteArray &bytes) {
  struct stat old = {};
  const bool isNew = stat(_path.constData(), &old) != 0;
  // Root, who may write every user's files, keeps their owner.
  if (!isNew && geteuid() == 0 && fchown(_beside, old.st_uid, old.st_gid) != 0)
    return posixError(errno);
  if (!isNew && fchmod(_beside, old.st_mode & kPermissions) != 0) return posixError(errno);
  if (ftruncate(_beside, 0) != 0 || !writeAll(_beside, bytes)) return posixError(errno);
  // Some file systems report only now that they are full.
  if (fsync(_beside) != 0) return posixError(errno);
  if (rename((_path + ".new").constData(), _path.constData()) != 0) return posixError(errno);
  close(_beside);
  _beside = -1;
  syncFolder(_path);
  return std::nullopt;
}

std::optional<Error> PlainFileWriter::write(const QByteArray &bytes) {
  if (!_problem && !holdsAlready(bytes)) _problem = replace(bytes);
  if (_problem) {
    systemLog(
        u"%1 is not written: %2"_s.arg(QFile::decodeName(_path), _problem->localizedDescription));
  }
  return _problem;
}
