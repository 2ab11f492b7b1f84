#include <sys/sysmacros.h>

#include "Platform/linux/MountTable.h"

namespace {

// Blanks, line ends and backslashes in a name are escaped as three octal digits, such as \040.
QByteArray unescaped(QByteArrayView field) {
  QByteArray text;
  text.reserve(field.size());
  for (qsizetype i = 0; i < field.size(); ++i) {
    bool isOctal = false;
    const uint code = field.size() - i > 3 && field[i] == '\\'
                          ? field.sliced(i + 1, 3).toByteArray().toUInt(&isOctal, 8)
                          : 0;
    if (isOctal && code <= 0xff) {
      text += static_cast<char>(code);
      i += 3;
    } else {
      text += field[i];
    }
  }
  return text;
}

std::optional<quint64> deviceNumber(const QByteArray &field) {
  const auto parts = field.split(':');
  if (parts.size() != 2) return std::nullopt;
  bool majorIsNumber = false;
  bool minorIsNumber = false;
  const uint majorNumber = parts[0].toUInt(&majorIsNumber);
  const uint minorNumber = parts[1].toUInt(&minorIsNumber);
  if (!majorIsNumber || !minorIsNumber) return std::nullopt;
  return makedev(majorNumber, minorNumber);
}

// Fields: id, parent, major:minor, root, mount point, options, any number of optional fields, "-",
// file system, source, more options.
std::optional<MountLine> parseLine(const QByteArray &line) {
  const auto fields = line.split(' ');
  const qsizetype dash = fields.indexOf("-", 6);
  if (dash < 0 || fields.size() < dash + 3) return std::nullopt;
  bool idIsNumber = false;
  const quint64 id = fields[0].toULongLong(&idIsNumber);
  const auto device = deviceNumber(fields[2]);
  const QByteArray mountPoint = unescaped(fields[4]);
  if (!idIsNumber || !device || !mountPoint.startsWith('/')) return std::nullopt;
  return MountLine{id,
                   *device,
                   unescaped(fields[3]),
                   mountPoint,
                   fields[dash + 1],
                   unescaped(fields[dash + 2]),
                   unescaped(fields.value(dash + 3))};
}

}  // namespace

QList<MountLine> parseMountTable(QByteArrayView text) {
  QList<MountLine> lines;
  for (const QByteArray &line : text.toByteArray().split('\n')) {
    if (const auto parsed = parseLine(line)) lines.append(*parsed);
  }
  return lines;
}
