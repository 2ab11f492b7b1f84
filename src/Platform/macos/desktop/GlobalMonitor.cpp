#include "Platform/macos/desktop/GlobalMonitor.h"

#include <Block.h>
#include <objc/message.h>
#include <objc/runtime.h>

namespace {

// NSEventMaskLeftMouseDown, NSEventMaskRightMouseDown and NSEventMaskKeyUp.
constexpr unsigned long long kPressesAndReleasedKeys = 1U << 1U | 1U << 3U | 1U << 11U;

class GlobalMonitor;

/// An Objective-C block in the layout of the compilers. The system copies it byte by byte.
struct Block {
  struct Descriptor {
    unsigned long reserved;
    unsigned long size;
  };
  void *kind;
  int flags;
  int reserved;
  void (*invoke)(Block *block, id event);
  const Descriptor *descriptor;
  GlobalMonitor *monitor;
};
constexpr Block::Descriptor kDescriptor{0, sizeof(Block)};

id eventClass() {
  return reinterpret_cast<id>(objc_getClass("NSEvent"));
}

class GlobalMonitor final : public EventMonitor {
 public:
  explicit GlobalMonitor(std::function<void()> handler) : _handler(std::move(handler)) {
    using Add = id (*)(id, SEL, unsigned long long, Block *);
    Block block{_NSConcreteStackBlock, 0, 0, handle, &kDescriptor, this};
    _token = reinterpret_cast<Add>(objc_msgSend)(
        eventClass(), sel_registerName("addGlobalMonitorForEventsMatchingMask:handler:"),
        kPressesAndReleasedKeys, &block);
  }
  GlobalMonitor(const GlobalMonitor &) = delete;
  GlobalMonitor &operator=(const GlobalMonitor &) = delete;
  ~GlobalMonitor() override {
    using Remove = void (*)(id, SEL, id);
    if (!isWatching()) return;
    reinterpret_cast<Remove>(objc_msgSend)(eventClass(), sel_registerName("removeMonitor:"),
                                           _token);
  }

  bool isWatching() const { return _token != nullptr; }

 private:
  // A copy, because the handler may destroy the monitor and what it captured.
  static void handle(Block *block, id) {
    const std::function<void()> call = block->monitor->_handler;
    call();
  }

  std::function<void()> _handler;
  id _token = nullptr;
};

}  // namespace

std::unique_ptr<EventMonitor> makeGlobalMonitor(std::function<void()> handler) {
  auto monitor = std::make_unique<GlobalMonitor>(std::move(handler));
  if (!monitor->isWatching()) return nullptr;
  return monitor;
}
