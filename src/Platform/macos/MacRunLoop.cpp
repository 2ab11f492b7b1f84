#include "Platform/macos/MacRunLoop.h"

#include <CoreFoundation/CoreFoundation.h>

#include <QTimer>
#include <chrono>

void MacRunLoop::run(const bool &finished) {
  ++_waits;
  // A stop ends the innermost run of the loop, which may be a foreign one, such as a dialog's.
  QTimer lookAgain;
  QObject::connect(&lookAgain, &QTimer::timeout, [&] {
    if (finished) stop();
  });
  lookAgain.start(std::chrono::milliseconds(50));
  while (!finished) CFRunLoopRun();
  --_waits;
  // The stop that has ended this wait may have been meant for the outer one.
  stop();
}

// Without a pending wait this would end the program's own loop.
void MacRunLoop::stop() {
  if (_waits > 0) CFRunLoopStop(CFRunLoopGetMain());
}

void MacRunLoop::servePending() {
  constexpr CFTimeInterval kMoment = 0.02;
  CFRunLoopRunInMode(kCFRunLoopDefaultMode, kMoment, 0);
  // The stop that has ended this call may have been meant for the outer wait.
  stop();
}
