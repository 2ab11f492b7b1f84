#include <CoreFoundation/CoreFoundation.h>

#include <QApplication>

#include "Platform/ThisMachine.h"
#include "Platform/common/ActivationMonitor.h"
#include "Platform/common/QtTrayItem.h"
#include "Platform/macos/MacUserDefaults.h"
#include "Platform/macos/Observation.h"
#include "Platform/macos/desktop/GlobalMonitor.h"

namespace {

/// The menu bar, whose shade follows the wallpaper, colours the picture itself.
class MacTrayItem final : public QtTrayItem {
 public:
  MacTrayItem() : QtTrayItem(MenuBy::Us) {}

  void setImage(const QIcon &image) override {
    QIcon mask(image);
    mask.setIsMask(true);
    QtTrayItem::setImage(mask);
  }
};

class MacDesktop final : public Desktop {
 public:
  MacDesktop() {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &MacDesktop::noteApplicationState);
  }

  std::unique_ptr<TrayItem> makeTrayItem() override { return std::make_unique<MacTrayItem>(); }

  std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) override {
    if (auto monitor = makeGlobalMonitor(handler)) return monitor;
    return std::make_unique<ActivationMonitor>(handler);
  }

  // The global value, unless this application has its own.
  QVariant interfaceStyle() const override {
    return MacUserDefaults().object(QStringLiteral("AppleInterfaceStyle"));
  }

  Facts facts() const override {
    return {{Desktop::tr("Tray"), QStringLiteral("NSStatusItem")},
            {Desktop::tr("Windows"), QGuiApplication::platformName()}};
  }

  void notify(const QString &title, const QString &text, TrayItem &item) override {
    item.showMessage(title, text);
  }

  // The Finder, the Dock and `open` start only one instance of an application.
  bool becomeOnlyInstance() override { return true; }

 private:
  static void themeChanged(CFNotificationCenterRef, void *observer, CFNotificationName,
                           const void *, CFDictionaryRef) {
    emit static_cast<MacDesktop *>(observer)->interfaceThemeChanged();
  }

  // Opening a running application again sends it "active" although it is active already.
  void noteApplicationState(Qt::ApplicationState state) {
    const bool isActive = state == Qt::ApplicationActive;
    if (isActive && _isActive) emit reopened();
    _isActive = isActive;
  }

  bool _isActive = false;
  Observation _theme{CFNotificationCenterGetDistributedCenter(),
                     QStringLiteral("AppleInterfaceThemeChangedNotification"), this, themeChanged};
};

}  // namespace

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv) {
  return std::make_unique<QApplication>(argc, argv);
}

std::unique_ptr<Desktop> makeDesktop(const QString &) {
  return std::make_unique<MacDesktop>();
}
