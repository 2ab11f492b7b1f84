#include "Platform/linux/MountTable.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <QFile>
#include <QSocketNotifier>
#include <array>
#include <utility>

#include "Foundation/Paths.h"

namespace {

int openTable(const QString &file) {
  return open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
}

// A file system that may span several devices has no device number of its own; its source gives the
// device.
quint64 deviceBehind(const MountLine &line) {
  if (major(line.device) != 0) return line.device;
  // Other sources are not looked at: they might lie on a volume that does not answer.
  if (line.fileSystem != "btrfs" || !line.source.startsWith("/dev/")) return 0;
  struct stat source = {};
  if (stat(line.source.constData(), &source) != 0 || !S_ISBLK(source.st_mode)) return 0;
  return source.st_rdev;
}

// The name is the last option and may contain commas.
QByteArray subvolumeOf(const MountLine &line) {
  const QByteArray key = ",subvol=";
  const qsizetype index = line.options.indexOf(key);
  return index < 0 ? QByteArray() : line.options.sliced(index + key.size());
}

// Some systems have their "/" in a folder of its volume.
bool isWholeVolume(const MountLine &line) {
  if (line.root == "/" || line.mountPoint == "/") return true;
  return line.fileSystem == "btrfs" && line.root == subvolumeOf(line);
}

}  // namespace

MountTable::MountTable(const QString &file) : _table(openTable(file)), _wakeUp(openTable(file)) {}

MountTable::~MountTable() {
  _notifier.reset();
  if (_table >= 0) close(_table);
  if (_wakeUp >= 0) close(_wakeUp);
}

void MountTable::setChangeHandler(std::function<void()> handler) {
  if (_wakeUp < 0) return;
  _notifier = std::make_unique<QSocketNotifier>(_wakeUp, QSocketNotifier::Exception);
  QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(),
                   [call = std::move(handler)] { call(); });
}

bool MountTable::hasChanged() const {
  pollfd question{_table, POLLPRI, 0};
  return poll(&question, 1, 0) > 0 && (question.revents & (POLLPRI | POLLERR)) != 0;
}

bool MountTable::refresh() {
  const bool isStale = hasChanged() || !_isRead;
  if (_table < 0 || !isStale) return false;
  _isRead = true;
  // The kernel returns the table in pieces; if it changes meanwhile, the pieces may not fit
  // together.
  constexpr int kTries = 10;
  QByteArray text = readAll();
  for (int i = 0; i < kTries && hasChanged(); ++i) text = readAll();
  takeLines(parseMountTable(text));
  return true;
}

QByteArray MountTable::readAll() const {
  QByteArray text;
  std::array<char, 16384> piece;
  lseek(_table, 0, SEEK_SET);
  for (ssize_t size = 1; size > 0;) {
    size = read(_table, piece.data(), piece.size());
    if (size > 0) text.append(piece.data(), size);
  }
  return text;
}

void MountTable::takeLines(const QList<MountLine> &lines) {
  _mounts.clear();
  _mountPointOf.clear();
  _topmost.clear();
  for (const MountLine &line : lines) {
    const quint64 device = isWholeVolume(line) ? deviceBehind(line) : 0;
    const QString mountPoint = pathFromBytes(line.mountPoint);
    _topmost.insert(mountPoint, {line.id, device, mountPoint});
    if (device == 0) continue;
    _mounts.append({line.id, device, mountPoint});
    QString &shown = _mountPointOf[device];
    if (shown.isEmpty() || mountPoint == QLatin1StringView("/")) shown = mountPoint;
  }
}

std::optional<QString> MountTable::mountPointOf(quint64 device) const {
  const auto found = _mountPointOf.constFind(device);
  if (found == _mountPointOf.constEnd()) return std::nullopt;
  return *found;
}

Mount MountTable::holding(const QString &path) const {
  for (QString folder = path; folder.size() > 1; folder.truncate(folder.lastIndexOf(u'/'))) {
    const auto mount = _topmost.constFind(folder);
    if (mount != _topmost.constEnd()) return *mount;
  }
  return _topmost.value(QStringLiteral("/"));
}
