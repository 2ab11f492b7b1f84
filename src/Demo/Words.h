#pragma once

// The ways in which the simulated service may answer, and what the machine window calls them.

#include <QString>
#include <QVector>
#include <utility>

#include "Platform/simulated/Machine.h"

/// What is offered of a kind, from nothing of the kind on, with its words.
template <typename Value>
using Choices = QVector<std::pair<std::optional<Value>, QString>>;

const Choices<DissenterStatus> &refusals();
const Choices<Mishap> &mishaps();

/// The words of a choice; empty for what is not offered.
template <typename Value>
QString phrase(const Choices<Value> &choices, const std::optional<Value> &chosen) {
  for (const auto &[value, words] : choices) {
    if (value == chosen) return words;
  }
  return {};
}
