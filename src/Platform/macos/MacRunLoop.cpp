#include "Platform/macos/MacRunLoop.h"

#include <CoreFoundation/CoreFoundation.h>

#include <QTimer>
#include <chrono>

void MacRunLoop::run(const bool &finished) {
  ++_waits;
  // A stop ends the innermost run of the loop, which may be somebody else's, such as a dialog's.
  QTimer lookAgain;
  QObject::connect(&lookAgain, &QTimer::timeout, [&] {
    if (finished) stop();
  });
  lookAgain.start(std::chrono::milliseconds(50));
  while (!finished) CFRunLoopRun();
  --_waits;
  // The stop that has ended this wait may have been meant for the one outside.
  stop();
}

// Without a wait under way it would end the program's own loop.
void MacRunLoop::stop() {
  if (_waits > 0) CFRunLoopStop(CFRunLoopGetMain());
}

void MacRunLoop::servePending() {
  constexpr CFTimeInterval kMoment = 0.02;
  CFRunLoopRunInMode(kCFRunLoopDefaultMode, kMoment, 0);
  // The stop that has ended this may have been meant for the wait outside.
  stop();
}
