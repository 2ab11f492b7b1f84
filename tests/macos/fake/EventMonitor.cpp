// NSEvent's global monitors, by the one message of the Objective-C runtime, with a block for a handler.

#include <Block.h>
#include <objc/runtime.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <set>

#include "macos/fake/World.h"

void *_NSConcreteGlobalBlock[32];
void *_NSConcreteStackBlock[32];

namespace fake {

namespace {

constexpr int kHasHelpers = 1 << 25;
constexpr int kIsGlobal = 1 << 28;

struct BlockDescriptor {
  unsigned long reserved;
  unsigned long size;
  // Only in blocks with helpers.
  void (*copy)(void *to, const void *from);
  void (*dispose)(const void *block);
};

struct Block {
  void *isa;
  int flags;
  int reserved;
  void (*invoke)(const Block *self, id event);
  const BlockDescriptor *descriptor;
};

/// A global block serves as it is; another lives on the stack of its maker and is copied.
Block *copyOf(Block *block) {
  const bool isGlobal = (block->flags & kIsGlobal) != 0;
  if (block->isa != (isGlobal ? _NSConcreteGlobalBlock : _NSConcreteStackBlock)) {
    report("A block's flags and its class do not fit together.");
  }
  if (isGlobal) return block;
  auto *const copy = static_cast<Block *>(std::malloc(block->descriptor->size));
  std::memcpy(copy, block, block->descriptor->size);
  if ((block->flags & kHasHelpers) != 0) block->descriptor->copy(copy, block);
  return copy;
}

void destroy(Block *block) {
  if ((block->flags & kIsGlobal) != 0) return;
  if ((block->flags & kHasHelpers) != 0) block->descriptor->dispose(block);
  std::free(block);
}

struct EventObject : Object {
  static constexpr char kType[] = "NSEvent";
  EventObject() : Object(kType) {}
};

}  // namespace

/// The token of a monitor. Its one reference goes with removeMonitor:.
struct Monitor : Object {
  static constexpr char kType[] = "an event monitor";
  Monitor(unsigned long long events, Block *handler)
      : Object(kType), mask(events), block(copyOf(handler)) {}
  ~Monitor() override { destroy(block); }
  void end() override { std::erase(world().monitors, this); }

  unsigned long long mask;
  Block *block;  // lives on as a part of the shell: a handler may remove its own monitor
};

namespace {

void *addMonitor(unsigned long long mask, void *block) {
  if (!Machine::current().allowsEventMonitors) return nullptr;
  auto *const monitor =
      make<Monitor>("addGlobalMonitorForEventsMatchingMask:", mask, static_cast<Block *>(block));
  world().monitors.push_back(monitor);
  return monitor;
}

void removeMonitor(const void *token) {
  if (auto *monitor = checked<Monitor>(token, "removeMonitor:")) release(*monitor);
}

const char kClass[] = "NSEvent";

/// Selectors are texts that are there once.
const char *unique(const char *name) {
  static std::set<std::string> names;
  return names.insert(name).first->c_str();
}

}  // namespace

void Machine::sendEvent(Event event) {
  const auto present = world().monitors;
  for (Monitor *each : present) {
    if (each->isGone() || (each->mask >> static_cast<int>(event) & 1) == 0) continue;
    auto *const object = make<EventObject>("an event");
    each->block->invoke(each->block, as<id>(object));
    release(*object);
  }
}

}  // namespace fake

using namespace fake;

Class objc_getClass(const char *name) {
  return std::string(name) == kClass ? reinterpret_cast<Class>(const_cast<char *>(kClass))
                                     : nullptr;
}

SEL sel_registerName(const char *name) {
  return reinterpret_cast<SEL>(const_cast<char *>(unique(name)));
}

// Callers give it the type of the method that they mean; all arguments of those known here are
// passed alike.
extern "C" void *answerMessage(const void *receiver, const char *selector, std::uintptr_t first,
                               void *second) __asm__("objc_msgSend");

void *answerMessage(const void *receiver, const char *selector, std::uintptr_t first,
                    void *second) {
  if (receiver == nullptr) return nullptr;
  const std::string name = selector;
  if (receiver == kClass && name == "addGlobalMonitorForEventsMatchingMask:handler:") {
    return addMonitor(first, second);
  }
  if (receiver == kClass && name == "removeMonitor:") {
    removeMonitor(reinterpret_cast<const void *>(first));
  } else {
    report("unrecognized selector " + name);
  }
  return nullptr;
}
