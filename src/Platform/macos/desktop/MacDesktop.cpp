#include <CoreFoundation/CoreFoundation.h>

#include <QGuiApplication>

#include "Platform/ThisMachine.h"
#include "Platform/common/ActivationMonitor.h"
#include "Platform/common/QtTrayItem.h"
#include "Platform/macos/Values.h"
#include "Platform/macos/desktop/GlobalMonitor.h"

namespace {

const QString kThemeChanged = QStringLiteral("AppleInterfaceThemeChangedNotification");

class MacDesktop final : public Desktop {
 public:
  MacDesktop() {
    CFNotificationCenterAddObserver(CFNotificationCenterGetDistributedCenter(), this, themeChanged,
                                    makeText(kThemeChanged).get(), nullptr,
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &MacDesktop::noteApplicationState);
  }
  ~MacDesktop() override {
    CFNotificationCenterRemoveObserver(CFNotificationCenterGetDistributedCenter(), this,
                                       makeText(kThemeChanged).get(), nullptr);
  }

  std::unique_ptr<TrayItem> makeTrayItem() override {
    return std::make_unique<QtTrayItem>(QtTrayItem::MenuBy::Us);
  }

  std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) override {
    if (auto monitor = makeGlobalMonitor(handler)) return monitor;
    return std::make_unique<ActivationMonitor>(handler);
  }

  QVariant interfaceStyle() const override {
    const Owned<CFPropertyListRef> style(CFPreferencesCopyValue(
        makeText(QStringLiteral("AppleInterfaceStyle")).get(), kCFPreferencesAnyApplication,
        kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
    return valueOf(style.get());
  }

  Facts facts() const override {
    return {{Desktop::tr("Tray"), QStringLiteral("NSStatusItem")},
            {Desktop::tr("Windows"), QGuiApplication::platformName()}};
  }

  void notify(const QString &title, const QString &text, TrayItem &item) override {
    item.showMessage(title, text);
  }

  // The Finder, the Dock and `open` start an application only once.
  bool becomeOnlyInstance() override { return true; }

 private:
  static void themeChanged(CFNotificationCenterRef, void *observer, CFNotificationName,
                           const void *, CFDictionaryRef) {
    emit static_cast<MacDesktop *>(observer)->interfaceThemeChanged();
  }

  // An application that is opened once more is told that it has become active although it was.
  void noteApplicationState(Qt::ApplicationState state) {
    const bool isActive = state == Qt::ApplicationActive;
    if (isActive && _isActive) emit reopened();
    _isActive = isActive;
  }

  bool _isActive = false;
};

}  // namespace

std::unique_ptr<Desktop> makeDesktop(const QString &) {
  return std::make_unique<MacDesktop>();
}
