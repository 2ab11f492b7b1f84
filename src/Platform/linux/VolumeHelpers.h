#pragma once

// The processes that look at volumes: one that is ready, and one more for each volume that keeps it waiting.

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

  /// `lateAnswer` is called from the event loop when a volume has answered that was late, or when one was not asked
  /// because others had taken the time. The late answers are given again to what is asked inside that call.
  void setLateAnswerHandler(std::function<void()> lateAnswer) {
    _lateAnswer = std::move(lateAnswer);
  }

  /// The answer to a question that concerns this volume. Absent when it has not come in time, empty when there is
  /// none. All that is asked in one turn of the event loop waits 100 ms together.
  std::optional<QByteArray> answer(const Mount &volume, const QByteArray &question);

  /// Asks without waiting; the handler as for `VolumeHelper::ask`.
  void ask(const Mount &volume, const QByteArray &question, VolumeHelper::Handler handler);

  /// Waits no more for volumes that are not mounted any longer. Called from the event loop.
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
  QTimer _turn;  // of the event loop: ends with it
  std::chrono::nanoseconds _spent{0};
  QTimer _unasked;
  bool _isTellingLate = false;
  QHash<QByteArray, QByteArray> _lateAnswers;  // by question
};
