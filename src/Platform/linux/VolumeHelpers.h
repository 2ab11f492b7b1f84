#pragma once

// The helper processes that read volumes: one in reserve, and one for each volume that has not answered.

#include <QHash>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <memory>
#include <vector>

#include "Platform/linux/MountTable.h"
#include "Platform/linux/VolumeHelper.h"

class VolumeHelpers : public QObject {
 public:
  VolumeHelpers();

  /// `lateAnswer` is called from the event loop when a late volume has answered, or when a volume was not asked
  /// because others had used up the time. Calls of `answer` inside `lateAnswer` get the late answers.
  void setLateAnswerHandler(std::function<void()> lateAnswer) {
    _lateAnswer = std::move(lateAnswer);
  }

  /// The answer to a question about this volume. Absent when it has not come in time, empty when there is none.
  /// All calls in one turn of the event loop wait 100 ms together.
  std::optional<QByteArray> answer(const Mount &volume, const QByteArray &question);

  /// Asks without waiting; `handler` as for `VolumeHelper::ask`.
  void ask(const Mount &volume, const QByteArray &question, VolumeHelper::Handler handler);

  /// Stops waiting for volumes that are no longer mounted. Called from the event loop.
  void forgetVanished(const MountTable &table);

 private:
  using Helper = std::shared_ptr<VolumeHelper>;

  Helper helperFor(const Mount &volume);
  void release(const Mount &volume);
  void spend(std::chrono::nanoseconds time);
  void tellLate();

  std::function<void()> _lateAnswer;
  QHash<Mount, Helper> _busy;  // with this volume
  Helper _ready;
  QTimer _idle;
  QTimer _turn;  // the current turn of the event loop
  std::chrono::nanoseconds _spent{0};
  QTimer _unasked;
  bool _isTellingLate = false;
  QHash<QByteArray, QByteArray> _lateAnswers;  // by question
};
