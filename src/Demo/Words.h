#pragma once

// The ways in which the simulated service may answer, and what the machine window calls them.

#include <QString>
#include <QVector>
#include <utility>

#include "Platform/simulated/Machine.h"

/// The choices of one kind with their words; "none" comes first.
template <typename Value>
using Choices = QVector<std::pair<std::optional<Value>, QString>>;

const Choices<DissenterStatus> &refusals();
const Choices<Mishap> &mishaps();

/// The words of a choice; empty for a value that is not offered.
template <typename Value>
QString phrase(const Choices<Value> &choices, const std::optional<Value> &chosen) {
  for (const auto &[value, words] : choices) {
    if (value == chosen) return words;
  }
  return {};
}
