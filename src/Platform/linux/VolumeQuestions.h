#pragma once

// What the program and the process that looks at volumes for it say to each other.
//
// A question is one byte that says what is asked and then its arguments; an answer is plain values. Either
// travels behind its length. The answering process may have been taken over by a picture that it decoded, so
// its answers are values of no great size and are checked.

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <optional>

#include "Platform/VolumeFiles.h"
#include "Platform/common/VolumeIcons.h"

enum class VolumeQuestion : quint8 { Look, Entries, MakeFolder, Icon, Flush, Users };

template <typename... Values>
QByteArray packed(const Values &...values) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  (stream << ... << values);
  return bytes;
}

/// False, with the values in an unknown state, when the bytes do not hold them.
template <typename... Values>
bool unpack(const QByteArray &bytes, Values &...values) {
  QDataStream stream(bytes);
  (stream >> ... >> values);
  return stream.status() == QDataStream::Ok;
}

/// Looks, reads, decodes, writes: blocks for as long as it takes.
QByteArray answerTo(const QByteArray &question);

// How the answers read. Each gives what stands for no answer when the bytes are none.
LookAtPath lookFrom(const QByteArray &answer);
std::optional<QList<FolderEntry>> entriesFrom(const QByteArray &answer);
IconFile iconFileFrom(const QByteArray &answer);
QStringList usersFrom(const QByteArray &answer);

/// The bytes with their length before them, and the first message that is complete in a stream of such, which is
/// taken out of it. `isBroken` is set when what stands there can be no message.
QByteArray framed(const QByteArray &message);
std::optional<QByteArray> takeMessage(QByteArray &stream, bool &isBroken);
