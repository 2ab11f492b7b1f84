#pragma once

// The operations of `DiskArbitrator` that answer a question, by name.

#include <QJsonValue>
#include <QStringList>
#include <QVector>
#include <functional>

struct Operation {
  enum class Takes { Nothing, Reference, Folder };

  QString name;
  Takes takes;
  QString sentence;
  /// The answers of this operation that stand for a failure.
  QStringList sentinels;
  /// Null for an absent answer. A picture is its size, "256x256"; a UUID and a path are texts.
  std::function<QJsonValue(const QString &argument)> answer;
};

/// All of them, in a sensible order for the help text.
const QVector<Operation> &operations();
