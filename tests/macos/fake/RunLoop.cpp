// The run loop of the main thread, which is also Qt's event loop.

#include <dispatch/dispatch.h>

#include <QCoreApplication>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <thread>

#include "macos/fake/World.h"

using namespace fake;

void fake::serve(Mode mode) {
  const auto isServed = [mode](const Delivery &each) {
    const Session *const session = each.session;
    if (session != nullptr && session->isDead) return false;
    if (session == nullptr || session->modes.contains("kCFRunLoopCommonModes")) return true;
    return mode == Mode::Default && session->modes.contains("kCFRunLoopDefaultMode");
  };
  auto &waiting = world().deliveries;
  const auto next = [&] { return std::find_if(waiting.begin(), waiting.end(), isServed); };
  for (auto place = next(); place != waiting.end(); place = next()) {
    const auto deliver = std::move(place->deliver);
    waiting.erase(place);
    deliver();
  }
}

void fake::wake() {
  QMetaObject::invokeMethod(
      &world().context, [] { serve(); }, Qt::QueuedConnection);
}

void fake::post(Session *session, std::function<void()> deliver) {
  world().deliveries.push_back({session, std::move(deliver)});
  wake();
}

CFRunLoopRef CFRunLoopGetMain() {
  static Object *const loop = makeConstant("CFRunLoop");
  return as<CFRunLoopRef>(loop);
}

dispatch_queue_global_t dispatch_get_global_queue(intptr_t, uintptr_t) {
  return nullptr;
}

// On a thread of its own, and waited for, so that only one is ever at work.
void dispatch_async_f(dispatch_queue_t, void *context, dispatch_function_t work) {
  post(nullptr, [=] { std::thread(work, context).join(); });
}

namespace {

/// Whether it was stopped before the time was over. Qt's timers and posted events run in a nested
/// run of the loop as well, but no user's input.
bool runFor(std::chrono::milliseconds time) {
  auto &runs = world().runs;
  runs.push_back(false);
  QTimer end;
  end.setSingleShot(true);
  end.start(time);
  while (!runs.back() && end.isActive()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::WaitForMoreEvents);
  }
  const bool isStopped = runs.back();
  runs.pop_back();
  return isStopped;
}

}  // namespace

void CFRunLoopRun() {
  constexpr std::chrono::seconds kPatience(5);
  const bool isStopped = runFor(kPatience);
  if (!isStopped) report("A run of the run loop that nothing is left to stop: a Mac would hang");
}

CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode mode, CFTimeInterval seconds, Boolean) {
  expect(mode == kCFRunLoopDefaultMode);
  return runFor(std::chrono::milliseconds(std::lround(1000 * seconds))) ? kCFRunLoopRunStopped
                                                                        : kCFRunLoopRunTimedOut;
}

void CFRunLoopStop(CFRunLoopRef loop) {
  checked(loop, "CFRunLoop");
  if (!world().runs.empty()) {
    world().runs.back() = true;
  } else {
    report("CFRunLoopStop while nothing runs the loop: on a Mac it stops the program's own run");
  }
}
