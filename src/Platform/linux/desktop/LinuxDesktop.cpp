#include "Platform/ThisMachine.h"

#include <QApplication>
#include <QCursor>
#include <QDBusConnection>
#include <QEvent>
#include <QPalette>
#include <QPointer>

#include "Platform/common/ActivationMonitor.h"
#include "Platform/linux/desktop/ColorScheme.h"
#include "Platform/linux/desktop/Instance.h"
#include "Platform/linux/desktop/LinuxTrayItem.h"
#include "Platform/linux/desktop/Notifications.h"
#include "Platform/linux/desktop/XInputMonitor.h"

namespace {

// About half of a tray's item, whose last click's place may be all that is known of it.
constexpr int kHalfAnItem = 12;

bool hasDarkPalette() {
  return QApplication::palette().color(QPalette::Window).lightnessF() < 0.5F;
}

class LinuxDesktop final : public Desktop {
 public:
  explicit LinuxDesktop(const QString &serviceName) : _instance(_bus, serviceName), _scheme(_bus) {
    connect(&_instance, &Instance::activated, this, &Desktop::reopened);
    connect(&_scheme, &ColorScheme::changed, this, [this] {
      // The palette that was put over the desktop's own would be taken for it.
      if (_scheme.preference() == ColorScheme::Preference::None) QApplication::setPalette({});
      emit interfaceThemeChanged();
    });
    qApp->installEventFilter(this);
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

  QVariant interfaceStyle() const override {
    using enum ColorScheme::Preference;
    // Without a word from the person, what the desktop gives to its programs.
    const bool dark =
        _scheme.preference() == None ? hasDarkPalette() : _scheme.preference() == Dark;
    return dark ? QVariant(QStringLiteral("Dark")) : QVariant();
  }

  Facts facts() const override {
    return {{Desktop::tr("Tray"), _trayItem ? _trayItem->kind() : QString()},
            {Desktop::tr("Windows"), QGuiApplication::platformName()},
            {Desktop::tr("Desktop"), qEnvironmentVariable("XDG_CURRENT_DESKTOP")}};
  }

  bool eventFilter(QObject *watched, QEvent *event) override {
    const bool mayMatter = _scheme.preference() == ColorScheme::Preference::None;
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && mayMatter) {
      emit interfaceThemeChanged();
    }
    return false;
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
  ColorScheme _scheme;
  QPointer<TrayItem> _trayItem;
};

}  // namespace

std::unique_ptr<Desktop> makeDesktop(const QString &serviceName) {
  return std::make_unique<LinuxDesktop>(serviceName);
}
