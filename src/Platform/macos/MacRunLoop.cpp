#include "Platform/macos/MacRunLoop.h"

#include <CoreFoundation/CoreFoundation.h>

void MacRunLoop::run(const bool &finished) {
  ++_waits;
  while (!finished) CFRunLoopRun();
  // A stop that was meant for the wait outside has ended this one.
  if (--_waits > 0) stop();
}

// Without a wait under way it would end the program's own loop.
void MacRunLoop::stop() {
  if (_waits > 0) CFRunLoopStop(CFRunLoopGetCurrent());
}

void MacRunLoop::servePending() {
  CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0, 0);
}
