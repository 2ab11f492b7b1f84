#include "Platform/common/KeyFile.h"

qsizetype KeyFile::find(const QByteArray &group, const QByteArray &key) const {
  qsizetype found = -1;
  bool isInGroup = false;
  for (qsizetype index = 0; index < _lines.size(); ++index) {
    const QByteArray line = _lines[index].trimmed();
    const bool isGroup = line.startsWith('[');
    if (isGroup) isInGroup = line == '[' + group + ']';
    const QByteArray name =
        isGroup ? QByteArray() : line.first(qMax(0, line.indexOf('='))).trimmed();
    if (isInGroup && isGroup == key.isEmpty() && name == key) found = index;
  }
  return found;
}

std::optional<QByteArray> KeyFile::value(const QByteArray &group, const QByteArray &key) const {
  const qsizetype index = find(group, key);
  if (index < 0) return std::nullopt;
  return _lines[index].sliced(_lines[index].indexOf('=') + 1).trimmed();
}

void KeyFile::setValue(const QByteArray &group, const QByteArray &key, const QByteArray &value) {
  const QByteArray line = key + '=' + value;
  const qsizetype index = find(group, key);
  if (index >= 0) {
    _lines[index] = line;
    return;
  }
  if (find(group, {}) < 0) {
    if (_lines.last().trimmed().isEmpty()) _lines.removeLast();
    _lines << '[' + group + ']' << QByteArray();
  }
  _lines.insert(find(group, {}) + 1, line);
}

void KeyFile::remove(const QByteArray &group, const QByteArray &key) {
  while (find(group, key) >= 0) _lines.removeAt(find(group, key));
}
