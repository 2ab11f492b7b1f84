#include "Platform/ThisMachine.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QPalette>
#include <QPointer>

#include "Platform/common/ActivationMonitor.h"
#include "Platform/common/DarkPalette.h"
#include "Platform/linux/desktop/ColorScheme.h"
#include "Platform/linux/desktop/DesktopNotifications.h"
#include "Platform/linux/desktop/Instance.h"
#include "Platform/linux/desktop/LinuxTrayItem.h"
#include "Platform/linux/desktop/PlaceOfClick.h"
#include "Platform/linux/desktop/SessionStart.h"
#include "Platform/linux/desktop/XInputMonitor.h"
#include "Platform/linux/desktop/XSettings.h"
#include "Platform/linux/desktop/XcbWindows.h"

namespace {

// The size of a tray item. When the panel hides itself, only the place of the last click is known.
constexpr int kAnItem = 24;

/// Qt calls the session bus too, and would block on a frozen one. While this object exists, Qt
/// finds no frozen bus; the program then runs without Qt's connection to it.
class HiddenBus {
 public:
  HiddenBus() {
    if (MessageBus::isFrozen(MessageBus::sessionAddress())) qputenv(kVariable, "unix:path=/");
  }
  ~HiddenBus() {
    if (qgetenv(kVariable) == _address) return;
    QDBusConnection::sessionBus();  // keeps the present result for good
    _address.isNull() ? qunsetenv(kVariable) : qputenv(kVariable, _address);
  }
  HiddenBus(const HiddenBus &) = delete;
  HiddenBus &operator=(const HiddenBus &) = delete;

 private:
  static constexpr const char *kVariable = "DBUS_SESSION_BUS_ADDRESS";
  const QByteArray _address = qgetenv(kVariable);
};

class LinuxDesktop final : public Desktop {
 public:
  explicit LinuxDesktop(const QString &serviceName) : _instance(_bus, serviceName), _scheme(_bus) {
    connect(&_instance, &Instance::activated, this, &Desktop::reopened);
    connect(&_scheme, &ColorScheme::changed, this, [this] {
      // Otherwise the palette that the program has set would count as the desktop's own.
      if (_scheme.preference() == ColorScheme::Preference::None) QApplication::setPalette({});
      emit interfaceThemeChanged();
    });
    connect(&_xSettings, &XSettings::changed, this, &Desktop::interfaceThemeChanged);
    qApp->installEventFilter(this);
  }

  std::unique_ptr<TrayItem> makeTrayItem() override {
    auto item = std::make_unique<LinuxTrayItem>(_bus);
    _trayItem = item.get();
    return item;
  }

  std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) override {
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
      if (auto monitor = XInputMonitor::make(handler, [this] { return pressedOn(); })) {
        if (_trayItem) {
          connect(_trayItem, &TrayItem::activated, monitor.get(), &XInputMonitor::itemClicked);
        }
        return monitor;
      }
    }
    return std::make_unique<ActivationMonitor>(handler);
  }

  QVariant interfaceStyle() const override {
    using enum ColorScheme::Preference;
    // Without a preference of the user, the theme that the desktop gives to programs decides.
    const bool dark = _scheme.preference() == None ? hasDarkTheme() : _scheme.preference() == Dark;
    return dark ? QVariant(QStringLiteral("Dark")) : QVariant();
  }

  bool wasStartedAtLogin() const override { return _startedAtLogin; }

  QString adviceWithoutTray() const override {
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME"))) {
      return Desktop::tr(
          "GNOME shows no tray icons by itself. Install and switch on the extension "
          "“AppIndicator and KStatusNotifierItem Support” to see Keldra's. Until "
          "then, start Keldra once more to open this window.");
    }
    return Desktop::tr(
        "No panel here shows tray icons. Add a tray, or “status notifier”, to a panel "
        "to see Keldra's. Until then, start Keldra once more to open this window.");
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
    sendNotification(_bus.connection(), title, text, [title, text, tray = QPointer(&item)] {
      if (tray) tray->showMessage(title, text);
    });
  }

  bool becomeOnlyInstance() override { return _instance.claim(); }

  WindowAbilities windowAbilities() const override { return windowAbilitiesNow(); }
  void keepOutOfTaskbar(const QWidget &window) const override { keepOutOfXcbTaskbar(window); }

  std::optional<QColor> accentColor() const override { return _scheme.accent(); }

 private:
  bool hasDarkTheme() const {
    const QString theme = _xSettings.themeName();
    return theme.isEmpty() ? hasDarkWindows(QApplication::palette()) : isDarkThemeName(theme);
  }

  XInputMonitor::On pressedOn() const {
    const QPoint pointer = QCursor::pos();
    if (QApplication::topLevelAt(pointer)) return XInputMonitor::On::Ours;
    const QRect item = _trayItem ? _trayItem->place() : QRect();
    const bool isAtItem =
        !item.isNull() && item.adjusted(-kAnItem, -kAnItem, kAnItem, kAnItem).contains(pointer);
    return isAtItem || isOnPanel(pointer, screenAreas()) ? XInputMonitor::On::Panel
                                                         : XInputMonitor::On::Other;
  }

  MessageBus _bus{MessageBus::sessionAddress()};
  Instance _instance;
  ColorScheme _scheme;
  XSettings _xSettings;
  QPointer<TrayItem> _trayItem;
  const bool _startedAtLogin = wasStartedBySession();
};

}  // namespace

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv) {
  constexpr const char *kPlatform = "QT_QPA_PLATFORM";
  // On native Wayland, no program may place a window, keep it above others or out of task bars, and a popover
  // needs all of that. Where the X server does not answer, Qt uses the next platform in the list.
  const bool isOurChoice =
      qEnvironmentVariableIsEmpty(kPlatform) && !qEnvironmentVariableIsEmpty("DISPLAY");
  if (isOurChoice) qputenv(kPlatform, "xcb;wayland");
  const HiddenBus hidden;
  auto application = std::make_unique<QApplication>(argc, argv);
  if (isOurChoice) qunsetenv(kPlatform);
  return application;
}

std::unique_ptr<Desktop> makeDesktop(const QString &serviceName) {
  return std::make_unique<LinuxDesktop>(serviceName);
}
