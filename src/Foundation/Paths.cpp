#include "Foundation/Paths.h"

#include <QStringList>

namespace {

constexpr char16_t kStrayBytes = 0xDC00;

bool isStrayByte(QStringView text, qsizetype index) {
  const char16_t unit = text[index].unicode();
  const bool isPair = index > 0 && text[index - 1].isHighSurrogate();
  return unit >= kStrayBytes + 0x80 && unit <= kStrayBytes + 0xFF && !isPair;
}

/// The length of the UTF-8 character at the start of the bytes; 0 if there is none.
qsizetype lengthOfCharacter(QByteArrayView bytes) {
  constexpr qsizetype kLongest = 4;
  for (qsizetype length = 1; length <= qMin(kLongest, bytes.size()); ++length) {
    if (bytes.first(length).isValidUtf8()) return length;
  }
  return 0;
}

}  // namespace

QString pathFromBytes(QByteArrayView bytes) {
  if (bytes.isValidUtf8()) return QString::fromUtf8(bytes);
  QString path;
  while (!bytes.isEmpty()) {
    const qsizetype length = lengthOfCharacter(bytes);
    if (length == 0) path += QChar(char16_t(kStrayBytes + static_cast<uchar>(bytes.front())));
    path += QString::fromUtf8(bytes.first(length));
    bytes = bytes.sliced(qMax<qsizetype>(1, length));
  }
  return path;
}

QByteArray bytesOfPath(const QString &path) {
  QByteArray bytes;
  qsizetype done = 0;
  for (qsizetype i = 0; i < path.size(); ++i) {
    if (!isStrayByte(path, i)) continue;
    bytes += QStringView(path).sliced(done, i - done).toUtf8();
    bytes += static_cast<char>(path[i].unicode() - kStrayBytes);
    done = i + 1;
  }
  return bytes + QStringView(path).sliced(done).toUtf8();
}

QUrl urlOfPath(const QString &path) {
  return QUrl::fromEncoded("file://" + bytesOfPath(path).toPercentEncoding("/"), QUrl::StrictMode);
}

QString pathOfUrl(const QUrl &url) {
  return pathFromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
}

QString canonicalPath(const QString &path) {
  QStringList components = path.split(u'/', Qt::SkipEmptyParts);
  components.removeAll(QStringLiteral("."));
  return u'/' + components.join(u'/');
}
