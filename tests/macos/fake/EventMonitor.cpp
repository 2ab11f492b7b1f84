// NSEvent's global monitor, through messages of the Objective-C runtime, with a block as handler.

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
  const unsigned long *descriptor;  // a reserved value, and the size
};

}  // namespace

void Machine::sendEvent(Event event) {
  const QByteArray bytes = world().handler;
  if ((world().watchedEvents >> static_cast<int>(event) & 1) == 0) return;
  const auto *const block = reinterpret_cast<const Block *>(bytes.constData());
  block->invoke(block, nullptr);
}

// A selector and a class are represented by their names.

SEL sel_registerName(const char *name) {
  return reinterpret_cast<SEL>(const_cast<char *>(name));
}

Class objc_getClass(const char *name) {
  return reinterpret_cast<Class>(const_cast<char *>(name));
}

// Callers cast this to the type of the method. All methods known here pass their arguments in the
// same way.
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
  // The bytes are copied, because the block's stack frame is gone when the handler is called.
  world().handler = {static_cast<const char *>(second),
                     static_cast<qsizetype>(block->descriptor[1])};
  world().watchedEvents = first;
  return token;
}
