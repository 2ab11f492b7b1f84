// NSEvent's global monitor, by the messages of the Objective-C runtime, with a block for a handler.

#include <Block.h>
#include <objc/runtime.h>

#include "macos/fake/World.h"

void *_NSConcreteStackBlock[32];

using namespace fake;

namespace {

struct Block {
  void *isa;
  int flags;
  int reserved;
  void (*invoke)(const Block *self, id event);
  const unsigned long *descriptor;  // something reserved, and the size
};

}  // namespace

void Machine::sendEvent(Event event) {
  const QByteArray bytes = world().handler;
  if ((world().watchedEvents >> static_cast<int>(event) & 1) == 0) return;
  const auto *const block = reinterpret_cast<const Block *>(bytes.constData());
  block->invoke(block, nullptr);
}

// A selector and a class are their own names.

SEL sel_registerName(const char *name) {
  return reinterpret_cast<SEL>(const_cast<char *>(name));
}

Class objc_getClass(const char *name) {
  return reinterpret_cast<Class>(const_cast<char *>(name));
}

// Callers give it the type of the method that they mean; all arguments of those known here are
// passed alike.
extern "C" void *answerMessage(const char *, const char *selector, std::uintptr_t first,
                               const void *second) __asm__("objc_msgSend");

void *answerMessage(const char *, const char *selector, std::uintptr_t first, const void *second) {
  static Object *const token = makeConstant("an event monitor");
  if (std::string_view(selector) == "removeMonitor:") {
    world().watchedEvents = 0;
    return nullptr;
  }
  const auto *const block = static_cast<const Block *>(second);
  expect(block->isa == _NSConcreteStackBlock && block->flags == 0);
  // Its bytes are copied: it is not on its maker's stack any more when it is called.
  world().handler = {static_cast<const char *>(second),
                     static_cast<qsizetype>(block->descriptor[1])};
  world().watchedEvents = first;
  return token;
}
