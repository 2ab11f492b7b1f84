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

constexpr char kCommonModes[] = "kCFRunLoopCommonModes";

void fake::serve(Mode mode) {
  const auto isServed = [mode](const auto &each) {
    const QStringList modes = each.first ? each.first->modes : QStringList{kCommonModes};
    return modes.contains(kCommonModes) || (mode == Mode::Default && !modes.isEmpty());
  };
  auto &waiting = world().deliveries;
  const auto next = [&] { return std::find_if(waiting.begin(), waiting.end(), isServed); };
  for (auto place = next(); place != waiting.end(); place = next()) {
    const auto deliver = std::move(place->second);
    waiting.erase(place);
    deliver();
  }
}

void fake::post(Session *session, std::function<void()> deliver) {
  world().deliveries.emplace_back(session, std::move(deliver));
  QMetaObject::invokeMethod(
      &world().context, [] { serve(); }, Qt::QueuedConnection);
}

CFRunLoopRef CFRunLoopGetMain() {
  return nullptr;
}

dispatch_queue_global_t dispatch_get_global_queue(intptr_t, uintptr_t) {
  return nullptr;
}

// Runs on a separate thread and waits for it, so that only one thread works at a time.
void dispatch_async_f(dispatch_queue_t, void *context, dispatch_function_t work) {
  post(nullptr, [=] { std::thread(work, context).join(); });
}

namespace {

/// Whether the run was stopped before its time was over. A nested run of the loop also serves Qt's
/// timers and posted events, but no user input.
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
  if (!runFor(std::chrono::seconds(5))) report("A run of the run loop that nothing stops");
}

CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode, CFTimeInterval seconds, Boolean) {
  runFor(std::chrono::milliseconds(std::lround(1000 * seconds)));
  return {};
}

void CFRunLoopStop(CFRunLoopRef) {
  auto &runs = world().runs;
  if (QThread::currentThread()->loopLevel() > 0) return;  // consumed by a dialog's loop
  if (runs.empty()) return report("CFRunLoopStop outside of all waits ends the program's own run");
  runs.back() = true;
}
