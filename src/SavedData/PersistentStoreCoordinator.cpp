#include "SavedData/PersistentStoreCoordinator.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <filesystem>

#include "SavedData/XMLStore.h"

using namespace Qt::StringLiterals;

namespace {

// Far more than a person's notes; reading it takes a second or two.
constexpr qint64 kLargestStore = 16 * 1024 * 1024;

Error corrupt(const QString &reason) {
  return {kCocoaErrorDomain, kFileReadCorruptFile,
          u"The saved data could not be read: %1"_s.arg(reason)};
}

Error notWritten(const QString &reason) {
  return {kCocoaErrorDomain, kFileWriteUnknown,
          u"The saved data could not be written: %1"_s.arg(reason)};
}

/// The new name of a file is safe only when its folder is on the disk too.
void syncFolder(const QString &folder) {
  const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

/// A disk that fills up takes a part at first; only the next part is refused, with the reason.
bool writeAll(QFileDevice &file, const QByteArray &bytes) {
  for (qsizetype done = 0; done < bytes.size();) {
    const qint64 count = file.write(bytes.constData() + done, bytes.size() - done);
    if (count <= 0) return false;
    done += count;
  }
  return file.flush();
}

std::optional<Error> writeSafely(const QString &path, const QByteArray &bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || !writeAll(file, bytes))
    return notWritten(file.errorString());
  // Some file systems find out only now that they are full, and committing would not tell.
  if (fsync(file.handle()) != 0) return notWritten(qt_error_string(errno));
  if (!file.commit()) return notWritten(file.errorString());
  syncFolder(QFileInfo(path).path());
  return std::nullopt;
}

}  // namespace

std::optional<Error> PersistentStoreCoordinator::addXMLStore(const QString &path) {
  std::error_code problem;
  const auto found = std::filesystem::status(QFile::encodeName(path).toStdString(), problem);
  if (found.type() == std::filesystem::file_type::not_found) {
    _path = path;
    return std::nullopt;
  }
  if (problem) return posixError(problem.value());
  // Opening a pipe would wait for ever.
  if (!std::filesystem::is_regular_file(found)) return corrupt(u"It is no file"_s);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return corrupt(file.errorString());
  if (file.size() > kLargestStore) return corrupt(u"It is too large"_s);
  auto content = objectsFromXML(file.readAll(), _model);
  if (const auto *reason = std::get_if<QString>(&content)) return corrupt(*reason);
  _objects = std::get<ManagedObjects>(std::move(content));
  _path = path;
  return std::nullopt;
}

std::optional<Error> PersistentStoreCoordinator::save(const ManagedObjects &objects) {
  const QByteArray bytes = xmlFromObjects(objects);
  // A file that the next start would refuse, or read otherwise, must not take the place of a good
  // one.
  const auto content = objectsFromXML(bytes, _model);
  const auto *readBack = std::get_if<ManagedObjects>(&content);
  if (bytes.size() > kLargestStore || readBack == nullptr || *readBack != objects)
    return notWritten(u"A text is too long, or has characters that cannot be kept"_s);
  if (auto error = writeSafely(_path, bytes)) return error;
  _objects = objects;
  return std::nullopt;
}
