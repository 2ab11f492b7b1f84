#pragma once

// What the machine window calls the ways in which the service may answer.

#include <QStringList>
#include <QVector>

#include "Platform/simulated/Machine.h"

/// The refusals that are offered, from the one that is none on.
const QVector<std::optional<DissenterStatus>> &refusals();
QString phrase(const std::optional<DissenterStatus> &refusal);

/// The mishaps that are offered, from the one that is none on.
const QVector<std::optional<Mishap>> &mishaps();
QString phrase(const std::optional<Mishap> &mishap);

/// The phrases of all of them, in their order.
template <typename Value>
QStringList phrases(const QVector<Value> &values) {
  QStringList texts;
  for (const Value &value : values) texts += phrase(value);
  return texts;
}
