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

  /// The text behind "=", without blanks around it. Absent where there is no such line; of several the last
  /// one counts.
  std::optional<QByteArray> value(const QByteArray &group, const QByteArray &key) const;

  // Changes. All other lines stay as they are.
  void setValue(const QByteArray &group, const QByteArray &key, const QByteArray &value);
  void remove(const QByteArray &group, const QByteArray &key);

  QByteArray bytes() const { return _lines.join('\n'); }

 private:
  /// Where the key's line is, or -1. For an empty key, where the group begins.
  qsizetype find(const QByteArray &group, const QByteArray &key) const;

  QByteArrayList _lines;
};
