#include "Platform/linux/desktop/LinuxDesktop.h"

#include <QApplication>
#include <QCursor>
#include <QDBusConnection>
#include <QPointer>

#include "Platform/common/ActivationMonitor.h"
#include "Platform/linux/desktop/Instance.h"
#include "Platform/linux/desktop/LinuxTrayItem.h"
#include "Platform/linux/desktop/Notifications.h"
#include "Platform/linux/desktop/XInputMonitor.h"

namespace {

// About half of a tray's item, whose last click's place may be all that is known of it.
constexpr int kHalfAnItem = 12;

class LinuxDesktop final : public Desktop {
 public:
  explicit LinuxDesktop(const QString &serviceName) : _instance(_bus, serviceName) {
    connect(&_instance, &Instance::activated, this, &Desktop::reopened);
  }

  std::unique_ptr<TrayItem> makeTrayItem() override {
    auto item = std::make_unique<LinuxTrayItem>(_bus);
    _trayItem = item.get();
    return item;
  }

  std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) override {
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
      if (auto monitor = XInputMonitor::make(handler, [this] { return isOurPress(); })) {
        return monitor;
      }
    }
    return std::make_unique<ActivationMonitor>(handler);
  }

  void notify(const QString &title, const QString &text, TrayItem &item) override {
    sendNotification(_bus, title, text, [title, text, tray = QPointer(&item)] {
      if (tray) tray->showMessage(title, text);
    });
  }

  bool becomeOnlyInstance() override { return _instance.claim(); }

 private:
  bool isOurPress() const {
    const QPoint pointer = QCursor::pos();
    if (QApplication::topLevelAt(pointer)) return true;
    const QRect item = _trayItem ? _trayItem->place() : QRect();
    return !item.isNull() &&
           item.adjusted(-kHalfAnItem, -kHalfAnItem, kHalfAnItem, kHalfAnItem).contains(pointer);
  }

  QDBusConnection _bus = QDBusConnection::sessionBus();
  Instance _instance;
  QPointer<TrayItem> _trayItem;
};

}  // namespace

std::unique_ptr<Desktop> makeLinuxDesktop(const QString &serviceName) {
  return std::make_unique<LinuxDesktop>(serviceName);
}
