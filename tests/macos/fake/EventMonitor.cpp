// NSEvent's global monitors, by the one message of the Objective-C runtime, with a block for a handler.

#include <Block.h>
#include <objc/runtime.h>

#include "macos/fake/World.h"

void *_NSConcreteGlobalBlock[32];
void *_NSConcreteStackBlock[32];

using namespace fake;

/// The token of a monitor. Its one reference goes with removeMonitor:.
struct fake::Monitor : Object {
  using Object::Object;
  unsigned long long mask = 0;
  std::string block;  // its bytes, a part of the shell: a handler may remove its own monitor
};

namespace {

struct Block {
  void *isa;
  int flags;
  int reserved;
  void (*invoke)(const Block *self, id event);
  const unsigned long *descriptor;  // something reserved, and the size
};

void *addMonitor(unsigned long long mask, const void *handler) {
  if (!Machine::current().allowsEventMonitors) return nullptr;
  const auto *const block = static_cast<const Block *>(handler);
  const bool isOnStack = block->isa == _NSConcreteStackBlock && block->flags == 0;
  if (!isOnStack) report("A block that is not what a plain one on the stack is");
  auto monitor = std::make_unique<Monitor>("an event monitor");
  monitor->mask = mask;
  // It is not on its maker's stack any more when it is called.
  monitor->block.assign(static_cast<const char *>(handler), block->descriptor[1]);
  world().monitors.push_back(monitor.get());
  return keep(std::move(monitor));
}

}  // namespace

void Machine::sendEvent(Event event) {
  const auto present = world().monitors;
  for (const Monitor *each : present) {
    if (each->isGone() || (each->mask >> static_cast<int>(event) & 1) == 0) continue;
    const auto *const block = reinterpret_cast<const Block *>(each->block.data());
    block->invoke(block, nullptr);
  }
}

// A selector and a class are texts that are there once.

SEL sel_registerName(const char *name) {
  static std::set<std::string> names;
  return reinterpret_cast<SEL>(const_cast<char *>(names.insert(name).first->c_str()));
}

Class objc_getClass(const char *name) {
  return reinterpret_cast<Class>(sel_registerName(name));
}

// Callers give it the type of the method that they mean; all arguments of those known here are
// passed alike.
extern "C" void *answerMessage(const char *receiver, const char *selector, std::uintptr_t first,
                               const void *second) __asm__("objc_msgSend");

void *answerMessage(const char *receiver, const char *selector, std::uintptr_t first,
                    const void *second) {
  const std::string message = std::string(receiver) + " " + selector;
  if (message == "NSEvent addGlobalMonitorForEventsMatchingMask:handler:") {
    return addMonitor(first, second);
  }
  if (message == "NSEvent removeMonitor:") {
    release(checked(reinterpret_cast<const void *>(first), "an event monitor"));
  } else {
    report("unrecognized selector: " + message);
  }
  return nullptr;
}
