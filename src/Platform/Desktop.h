#pragma once

// The seam between the program and the desktop: what a program may ask of a desktop beyond windows,
// which are Qt's. Separate from `Platform`, so that a simulated machine can be shown on a real
// desktop.
//
// Everything runs on the main thread, and nothing throws.

#include <QColor>
#include <QList>
#include <QObject>
#include <QRect>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

class QIcon;
class QMenu;
class QWidget;

/// Names and what is known of each: "Tray", "StatusNotifierItem".
using Facts = QList<std::pair<QString, QString>>;

/// The program's item in the tray. Once it has an image, it is shown as soon as a tray exists,
/// however late, and again after a restart of the tray.
class TrayItem : public QObject {
  Q_OBJECT

 public:
  /// The image; a tray may show a picture of its own that suits it better.
  virtual void setImage(const QIcon &image) = 0;

  /// Marks the item while the popover is open.
  virtual void setHighlighted(bool highlighted) = 0;

  /// The menu of a right click, or of any click where the desktop has no other kind. Not owned.
  virtual void setMenu(QMenu *menu) = 0;

  /// Where the item is on the screen; null while the desktop does not report it. The place may be
  /// that of the last click on the item.
  virtual QRect place() const = 0;

  /// Whether a tray shows the item now, as far as the desktop has reported.
  virtual bool isShown() const = 0;

  /// Which kind of tray shows the item, in words; empty while none is known.
  virtual QString kind() const = 0;

  /// Shows a message in the tray's own way, for a desktop without notifications.
  virtual void showMessage(const QString &title, const QString &text) = 0;

 signals:
  /// The user has clicked the item.
  void activated();
};

/// Watches events that go to other programs, until it is destroyed.
class EventMonitor {
 public:
  virtual ~EventMonitor() = default;
};

/// What the desktop lets a window do.
struct WindowAbilities {
  bool canBeTranslucent = true;  // else its transparent parts are black
  bool canBePlaced = true;       // else the desktop chooses its place
  bool canFade = true;           // its opacity may be changed while it is shown
};

class Desktop : public QObject {
  Q_OBJECT

 public:
  virtual std::unique_ptr<TrayItem> makeTrayItem() = 0;

  /// Calls the handler, from the event loop, for each press of the left or right button and each
  /// release of a key that goes to another program. The tray item counts as part of this program.
  /// Where the desktop does not report such events, the handler is called when another program
  /// becomes active. The handler may destroy the monitor.
  virtual std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) = 0;

  /// The value of "AppleInterfaceStyle" in the user's defaults: the text "Dark" for a dark
  /// interface; no value, or any other, for a light one. Does not block.
  virtual QVariant interfaceStyle() const = 0;

  /// The user's accent colour; absent where the desktop reports none.
  virtual std::optional<QColor> accentColor() const { return {}; }

  /// Whether the session itself, not the user, has started the program at login. Determined when this
  /// object is made.
  virtual bool wasStartedAtLogin() const { return false; }

  /// What the user can do about a missing tray, in a sentence or two.
  virtual QString adviceWithoutTray() const { return {}; }

  /// The kind of desktop and which of its protocols are in use, for a bug report.
  virtual Facts facts() const = 0;

  /// Tells the user something while the program is not in view. Does not block. Where the desktop
  /// has no notification service, `item` shows the message.
  virtual void notify(const QString &title, const QString &text, TrayItem &item) = 0;

  /// Makes this the only instance of the program in the user's session. False when there is another
  /// one: that one has been asked to show itself, and the user is told if it does not answer. Blocks
  /// until the session has answered, some four seconds at most; true where no session answers.
  virtual bool becomeOnlyInstance() = 0;

  /// The present abilities; they may change while the program runs.
  virtual WindowAbilities windowAbilities() const { return {}; }

  /// Keeps a window out of task bars and pagers. Call it each time before the window is mapped.
  virtual void keepOutOfTaskbar(const QWidget & /*window*/) const {}

 signals:
  /// "AppleInterfaceThemeChangedNotification": the interface style or the accent colour may have changed.
  void interfaceThemeChanged();

  /// The program was started again, or its entry chosen in the desktop's menu.
  void reopened();
};
