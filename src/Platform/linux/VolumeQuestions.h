#pragma once

// The messages between the program and its volume helper processes.
//
// A question is one byte for its kind, then its arguments; an answer is plain values. Each message follows
// its length. A malicious picture may have taken control of the helper that decoded it, so answers are
// limited in size and checked.

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

/// False, with the values in an unknown state, when the bytes do not contain the values.
template <typename... Values>
bool unpack(const QByteArray &bytes, Values &...values) {
  QDataStream stream(bytes);
  (stream >> ... >> values);
  return stream.status() == QDataStream::Ok;
}

/// Does the work of a question. Blocks for as long as the volume takes.
QByteArray answerTo(const QByteArray &question);

// Parse the answers. Each returns its value for "no answer" when the bytes are not valid.
LookAtPath lookFrom(const QByteArray &answer);
std::optional<QList<FolderEntry>> entriesFrom(const QByteArray &answer);
IconFile iconFileFrom(const QByteArray &answer);
QStringList usersFrom(const QByteArray &answer);

/// `framed` puts the length before a message. `takeMessage` removes the first complete message from a stream
/// and returns it; `isBroken` is set when the stream cannot be parsed.
QByteArray framed(const QByteArray &message);
std::optional<QByteArray> takeMessage(QByteArray &stream, bool &isBroken);
