#include "Platform/simulated/SimulatedDesktop.h"

class SimulatedDesktop::Monitor final : public EventMonitor {
 public:
  explicit Monitor(SimulatedDesktop &desktop) : _desktop(desktop) { ++_desktop.monitors; }
  ~Monitor() override {
    --_desktop.monitors;
    _desktop._handler = nullptr;
  }
  Monitor(const Monitor &) = delete;
  Monitor &operator=(const Monitor &) = delete;

 private:
  SimulatedDesktop &_desktop;
};

std::unique_ptr<TrayItem> SimulatedDesktop::makeTrayItem() {
  auto made = std::make_unique<SimulatedTrayItem>();
  item = made.get();
  item->hasTray = hasTray;
  return made;
}

std::unique_ptr<EventMonitor> SimulatedDesktop::addGlobalMonitor(std::function<void()> handler) {
  _handler = std::move(handler);
  return std::make_unique<Monitor>(*this);
}

void SimulatedDesktop::notify(const QString & /*title*/, const QString &text, TrayItem & /*item*/) {
  notifications += text;
}

void SimulatedDesktop::actElsewhere() {
  const auto handler = _handler;  // a copy: the handler may destroy the monitor
  if (handler) handler();
}
