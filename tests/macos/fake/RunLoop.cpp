// The run loop of the main thread, which is also Qt's event loop.

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>

#include "macos/fake/World.h"

using namespace fake;

void fake::serve(Mode mode) {
  const auto isServed = [mode](const Delivery &each) {
    const Session *const session = each.session;
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
CFRunLoopRef CFRunLoopGetCurrent() {
  return CFRunLoopGetMain();
}

// Qt's timers and posted events run in a nested run of the loop as well, but no user's input.
void CFRunLoopRun() {
  auto &runs = world().runs;
  runs.push_back(false);
  QTimer patience;
  patience.setSingleShot(true);
  patience.start(Machine::current().patience);
  while (!runs.back() && patience.isActive()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::WaitForMoreEvents);
  }
  if (!runs.back()) report("A run of the run loop that nothing is left to stop: a Mac would hang");
  runs.pop_back();
}

CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode mode, CFTimeInterval seconds, Boolean) {
  expect(mode == kCFRunLoopDefaultMode && seconds <= 0);
  world().runs.push_back(false);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  world().runs.pop_back();
  return kCFRunLoopRunTimedOut;
}

void CFRunLoopStop(CFRunLoopRef loop) {
  checked(loop, "CFRunLoop");
  if (!world().runs.empty()) {
    world().runs.back() = true;
  } else {
    report("CFRunLoopStop while nothing runs the loop: on a Mac it stops the program's own run");
  }
}
