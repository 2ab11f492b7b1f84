// The run loop of the main thread, which is also Qt's event loop.

#include <CoreFoundation/CoreFoundation.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <algorithm>

#include "macos/fake/Values.h"
#include "macos/fake/World.h"

namespace fake {

namespace {

struct RunLoopObject : Object {
  static constexpr char kType[] = "CFRunLoop";
  RunLoopObject() : Object(kType) {}
};

const std::string kDefault = "kCFRunLoopDefaultMode";

auto nextServedIn(const std::string &mode) {
  auto &deliveries = world().deliveries;
  return std::find_if(deliveries.begin(), deliveries.end(),
                      [&mode](const Delivery &each) { return each.isServedIn(mode); });
}

/// What waits now, not what that brings about.
bool serveOnce(const std::string &mode) {
  const long before = world().delivered;
  for (std::size_t count = world().deliveries.size(); count > 0; --count) {
    const auto next = nextServedIn(mode);
    if (next == world().deliveries.end()) break;
    const auto deliver = std::move(next->deliver);
    world().deliveries.erase(next);
    ++world().delivered;
    deliver();
  }
  return world().delivered > before;
}

bool isServedByQt(const std::string &mode) {
  return QCoreApplication::instance() != nullptr && isCommonMode(mode);
}

/// Qt's timers and posted events run in a nested run of the loop as well, but no user's input.
void serveQt(const std::string &mode, std::chrono::milliseconds wait) {
  if (!isServedByQt(mode)) return;
  QEventLoop::ProcessEventsFlags flags = QEventLoop::ExcludeUserInputEvents;
  QTimer end;
  if (wait.count() > 0) {
    flags |= QEventLoop::WaitForMoreEvents;
    end.start(wait);
  }
  QCoreApplication::processEvents(flags);
}

/// A pass after the other, at least one, until the run has been stopped or its time is over.
CFRunLoopRunResult run(const std::string &mode, std::chrono::duration<double> time,
                       bool endsWithDelivery) {
  using std::chrono::milliseconds;
  const std::size_t depth = world().runs.size();
  world().runs.push_back(false);
  const milliseconds patience = Machine::current().patience;
  const bool isEndless = time > patience;
  const QDeadlineTimer deadline(isEndless ? patience : std::chrono::ceil<milliseconds>(time));
  milliseconds wait{0};
  CFRunLoopRunResult result = 0;
  while (result == 0) {
    const long before = world().delivered;
    serveOnce(mode);
    serveQt(mode, world().runs[depth] ? milliseconds(0) : wait);
    const bool isIdle = world().delivered == before;
    wait = milliseconds(isIdle ? deadline.remainingTime() : 0);
    if (world().runs[depth]) {
      result = kCFRunLoopRunStopped;
    } else if (!isIdle && endsWithDelivery) {
      result = kCFRunLoopRunHandledSource;
    } else if (deadline.hasExpired() || (isIdle && !isServedByQt(mode))) {
      result = kCFRunLoopRunTimedOut;
      if (isEndless) report("A run of the run loop that nothing is left to stop: a Mac would hang");
    }
  }
  world().runs.pop_back();
  return result;
}

}  // namespace

bool isCommonMode(const std::string &mode) {
  return mode == kDefault || mode == "NSModalPanelRunLoopMode";
}

void wake() {
  if (QCoreApplication::instance() == nullptr) return;
  QMetaObject::invokeMethod(
      &world().context, [] { serveOnce(kDefault); }, Qt::QueuedConnection);
}

void post(Delivery delivery) {
  world().deliveries.push_back(std::move(delivery));
  wake();
}

void serve(Mode mode) {
  while (serveOnce(mode == Mode::Default ? kDefault : "NSModalPanelRunLoopMode")) continue;
}

}  // namespace fake

using namespace fake;

CFRunLoopRef CFRunLoopGetMain() {
  return as<CFRunLoopRef>(lasting<RunLoopObject>());
}
CFRunLoopRef CFRunLoopGetCurrent() {
  return CFRunLoopGetMain();
}

void CFRunLoopRun() {
  run(kDefault, std::chrono::hours(1), false);
}

CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode mode, CFTimeInterval seconds,
                                      Boolean returnAfterSourceHandled) {
  const auto name = textOf(mode);
  if (!name.has_value()) return kCFRunLoopRunFinished;
  if (*name == "kCFRunLoopCommonModes") {
    report("CFRunLoopRunInMode: the common modes are a set of modes, none that can be run");
    return kCFRunLoopRunFinished;
  }
  return run(*name, std::chrono::duration<double>(seconds), returnAfterSourceHandled != 0);
}

void CFRunLoopStop(CFRunLoopRef loop) {
  if (checked<RunLoopObject>(loop) == nullptr) return;
  if (world().runs.empty()) {
    report("CFRunLoopStop while nothing runs the loop: on a Mac it stops the program's own run");
  } else {
    world().runs.back() = true;
  }
}
