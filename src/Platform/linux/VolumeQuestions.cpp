#include "Platform/linux/VolumeQuestions.h"

#include <QtEndian>

#include "Foundation/Paths.h"
#include "Platform/common/DirectVolumeFiles.h"
#include "Platform/common/IconImage.h"
#include "Platform/linux/Flush.h"
#include "Platform/linux/VolumeUsers.h"

namespace {

constexpr quint32 kLongestMessage = 16 * 1024 * 1024;
constexpr char kFolder = 'd';
constexpr char kOther = '-';

class FilesOfVolumes final : public DirectVolumeFiles {
 public:
  void findProcessesUsing(const QString &mountPoint,
                          std::function<void(const QStringList &)> answer) override {
    answer(processesUsingVolume(mountPoint));
  }
};

/// NUL ends each name, because names cannot contain it.
QByteArray packedEntries(const std::optional<QList<FolderEntry>> &entries) {
  QByteArray names;
  for (const FolderEntry &entry : entries.value_or(QList<FolderEntry>())) {
    names += (entry.isFolder ? kFolder : kOther) + bytesOfPath(entry.name) + '\0';
  }
  return packed(entries.has_value(), names);
}

QByteArray packedIcon(const IconFile &file) {
  const QImage image =
      file.image.value_or(QImage()).convertToFormat(QImage::Format_ARGB32_Premultiplied);
  return packed(file.stamp.has_value(), file.stamp.value_or(FileStamp()), file.image.has_value(),
                image.width(), image.height(),
                QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
}

/// Null unless the bytes have the length of a picture of that size.
QImage imageFrom(int width, int height, const QByteArray &bytes) {
  const bool isSensible =
      width > 0 && height > 0 && width <= kLargestIconSide && height <= kLargestIconSide;
  if (!isSensible || bytes.size() != qsizetype{4} * width * height) return {};
  return QImage(reinterpret_cast<const uchar *>(bytes.constData()), width, height, 4 * width,
                QImage::Format_ARGB32_Premultiplied)
      .copy();
}

}  // namespace

QByteArray answerTo(const QByteArray &question) {
  FilesOfVolumes files;
  quint8 kind = 0;
  QString path;
  FileStamp known;
  quint64 device = 0;
  bool withParents = false;
  QStringList users;
  unpack(question, kind, path);
  switch (static_cast<VolumeQuestion>(kind)) {
    case VolumeQuestion::Look: {
      const LookAtPath look = files.look(path);
      return packed(static_cast<quint8>(look.access), look.realPath);
    }
    case VolumeQuestion::Entries:
      return packedEntries(files.entries(path));
    case VolumeQuestion::MakeFolder:
      unpack(question, kind, path, withParents);
      files.makeFolder(path,
                       withParents ? VolumeFiles::Parents::Make : VolumeFiles::Parents::Leave);
      return packed(true);
    case VolumeQuestion::Icon:
      unpack(question, kind, path, known);
      return packedIcon(readIconFile(path, known));
    case VolumeQuestion::Flush:
      unpack(question, kind, path, device);
      return packed(flushVolume(path, device));
    case VolumeQuestion::Users:
      files.findProcessesUsing(path, [&users](const QStringList &found) { users = found; });
      return packed(users.join(QChar(u'\0')));
  }
  return {};
}

LookAtPath lookFrom(const QByteArray &answer) {
  quint8 access = 0;
  LookAtPath look;
  if (!unpack(answer, access, look.realPath)) return {};
  if (access > static_cast<quint8>(LookAtPath::Access::Open)) return {};
  look.access = static_cast<LookAtPath::Access>(access);
  return look;
}

std::optional<QList<FolderEntry>> entriesFrom(const QByteArray &answer) {
  bool isListed = false;
  QByteArray names;
  if (!unpack(answer, isListed, names) || !isListed) return std::nullopt;
  QList<FolderEntry> entries;
  for (const QByteArray &name : names.split('\0')) {
    if (name.size() < 2) continue;
    entries.append({pathFromBytes(name.sliced(1)), name.front() == kFolder});
  }
  return entries;
}

IconFile iconFileFrom(const QByteArray &answer) {
  bool hasStamp = false;
  FileStamp stamp;
  bool hasImage = false;
  int width = 0;
  int height = 0;
  QByteArray bits;
  if (!unpack(answer, hasStamp, stamp, hasImage, width, height, bits) || !hasStamp) return {};
  if (!hasImage) return {stamp, {}};
  return {stamp, imageFrom(width, height, bits)};
}

QStringList usersFrom(const QByteArray &answer) {
  QString users;
  if (!unpack(answer, users)) return {};
  return users.split(QChar(u'\0'), Qt::SkipEmptyParts);
}

QByteArray framed(const QByteArray &message) {
  QByteArray length(sizeof(quint32), '\0');
  qToBigEndian(static_cast<quint32>(message.size()), length.data());
  return length + message;
}

std::optional<QByteArray> takeMessage(QByteArray &stream, bool &isBroken) {
  constexpr qsizetype kHeader = sizeof(quint32);
  if (stream.size() < kHeader) return std::nullopt;
  const auto length = qFromBigEndian<quint32>(stream.constData());
  isBroken = length > kLongestMessage;
  if (isBroken || stream.size() < kHeader + qsizetype{length}) return std::nullopt;
  const QByteArray message = stream.sliced(kHeader, length);
  stream.remove(0, kHeader + qsizetype{length});
  return message;
}
