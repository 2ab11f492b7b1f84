#include "Platform/linux/VolumeHelpers.h"

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 100ms;
constexpr auto kReadiness = 10s;

}  // namespace

VolumeHelpers::VolumeHelpers() {
  _idle.setSingleShot(true);
  _idle.setInterval(kReadiness);
  connect(&_idle, &QTimer::timeout, this, [this] { _ready.reset(); });
  _turn.setSingleShot(true);
  connect(&_turn, &QTimer::timeout, this, [this] { _spent = 0ms; });
  _unasked.setSingleShot(true);
  connect(&_unasked, &QTimer::timeout, this, &VolumeHelpers::tellLate);
}

VolumeHelpers::Helper VolumeHelpers::helperFor(const Mount &volume) {
  Helper helper = _busy.value(volume);
  if (helper == nullptr) helper = std::exchange(_ready, nullptr);
  if (helper == nullptr || helper->hasEnded()) helper = std::make_shared<VolumeHelper>();
  _busy.insert(volume, helper);
  return helper;
}

// Called from the helper's own code, so the helper must not be deleted before it returns.
void VolumeHelpers::release(const Mount &volume) {
  const Helper helper = _busy.value(volume);
  if (helper == nullptr || !helper->isIdle()) return;
  _busy.remove(volume);
  if (_ready == nullptr && !helper->hasEnded()) {
    _ready = helper;
    _idle.start();
  } else {
    QTimer::singleShot(0, this, [helper] {});
  }
}

void VolumeHelpers::ask(const Mount &volume, const QByteArray &question,
                        VolumeHelper::Handler handler) {
  const Helper helper = helperFor(volume);
  const auto answered = [this, volume, call = std::move(handler)](const QByteArray &answer) {
    release(volume);
    call(answer);
  };
  if (helper->hasEnded()) {
    QTimer::singleShot(0, this, [answered] { answered({}); });
  } else {
    helper->ask(question, answered);
  }
}

std::optional<QByteArray> VolumeHelpers::answer(const Mount &volume, const QByteArray &question) {
  if (!_isTellingLate) _lateAnswers.clear();
  const auto late = _lateAnswers.constFind(question);
  if (late != _lateAnswers.constEnd()) return *late;
  if (_busy.contains(volume)) return std::nullopt;
  if (_spent >= kPatience) {
    _unasked.start(0);
    return std::nullopt;
  }

  struct Wait {
    std::optional<QByteArray> answer;
    bool isOver = false;
  };
  const auto wait = std::make_shared<Wait>();
  const auto start = std::chrono::steady_clock::now();
  ask(volume, question, [this, wait, question](const QByteArray &answer) {
    wait->answer = answer;
    if (!wait->isOver) return;
    _lateAnswers.insert(question, answer);
    tellLate();
  });
  if (const Helper helper = _busy.value(volume)) {
    helper->serve(std::chrono::ceil<std::chrono::milliseconds>(kPatience - _spent));
  }
  spend(std::chrono::steady_clock::now() - start);
  wait->isOver = true;
  return wait->answer;
}

void VolumeHelpers::spend(std::chrono::nanoseconds time) {
  _spent += time;
  if (!_turn.isActive()) _turn.start(0);
}

void VolumeHelpers::tellLate() {
  const bool wasTelling = std::exchange(_isTellingLate, true);
  if (_lateAnswer) _lateAnswer();
  _isTellingLate = wasTelling;
}

void VolumeHelpers::forgetVanished(const MountTable &table) {
  const auto volumes = _busy.keys();
  for (const Mount &volume : volumes) {
    if (volume == Mount() || table.holding(volume.mountPoint) == volume) continue;
    const Helper helper = _busy.take(volume);
    helper->end();
  }
}
