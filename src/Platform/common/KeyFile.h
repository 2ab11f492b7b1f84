#pragma once

// Files of "key=value" lines in groups, as settings and desktop entries are:
//
//   [General]
//   RunAtload=true

#include <QByteArrayList>
#include <optional>

class KeyFile {
 public:
  explicit KeyFile(const QByteArray &bytes) : _lines(bytes.split('\n')) {}

  /// The text after "=", without blanks around it. Absent if there is no such line; the last of several
  /// lines counts.
  std::optional<QByteArray> value(const QByteArray &group, const QByteArray &key) const;

  // Changes. All other lines are kept unchanged.
  void setValue(const QByteArray &group, const QByteArray &key, const QByteArray &value);
  void remove(const QByteArray &group, const QByteArray &key);

  QByteArray bytes() const { return _lines.join('\n'); }

 private:
  /// The index of the key's line, or -1. For an empty key, the line where the group begins.
  qsizetype find(const QByteArray &group, const QByteArray &key) const;

  QByteArrayList _lines;
};
