#pragma once

// The seam between the program and the desktop that it is shown on: what a program may ask of a
// desktop beyond windows, which are Qt's. Apart from `Platform`, so that a simulated machine can be
// shown on a real desktop.
//
// All of it lives on the main thread, and nothing throws.

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

/// Subjects and what there is to say about each: "Tray", "StatusNotifierItem".
using Facts = QList<std::pair<QString, QString>>;

/// The program's item in the tray. It shows from its first image on; where there is no tray yet,
/// once there is one, however late, and again when the tray has been restarted.
class TrayItem : public QObject {
  Q_OBJECT

 public:
  /// A tray may have a picture of its own that suits it better.
  virtual void setImage(const QIcon &image) = 0;

  /// Whether the item is marked, because what hangs from it is open.
  virtual void setHighlighted(bool highlighted) = 0;

  /// The menu of a right click, or of any click where the desktop knows no other. Not owned.
  virtual void setMenu(QMenu *menu) = 0;

  /// Where the item is on the screen; null while the desktop does not tell. That may be the place
  /// of the last click on it.
  virtual QRect place() const = 0;

  /// Whether a tray shows it now, as far as the desktop has told.
  virtual bool isShown() const = 0;

  /// Which kind of tray shows it, in words; empty while none is known.
  virtual QString kind() const = 0;

  /// Says something in the tray's own way, for a desktop without another.
  virtual void showMessage(const QString &title, const QString &text) = 0;

 signals:
  /// A person has clicked the item.
  void activated();
};

/// Watches events that go to other programs; destroying it ends that.
class EventMonitor {
 public:
  virtual ~EventMonitor() = default;
};

/// What a window may expect of the desktop.
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
  /// release of a key that goes to another program. The tray item counts as this program's. Where
  /// the desktop shows nobody such events, that another program has become the active one stands in
  /// for them. The handler may destroy the monitor.
  virtual std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) = 0;

  /// What the user's defaults hold under "AppleInterfaceStyle": the text "Dark" for a dark
  /// interface; no value, or any other, for a light one. Does not wait.
  virtual QVariant interfaceStyle() const = 0;

  /// The person's accent colour; absent where the desktop has none to tell.
  virtual std::optional<QColor> accentColor() const { return {}; }

  /// Whether the session itself has started the program, at login, and no person. Decided as it is made.
  virtual bool wasStartedAtLogin() const { return false; }

  /// What a person can do about the lack of a tray, in a sentence or two.
  virtual QString adviceWithoutTray() const { return {}; }

  /// What it is and which of its ways are in use, for a report of a fault.
  virtual Facts facts() const = 0;

  /// Tells a person who is not looking at the program. Does not wait; where the desktop has nobody
  /// to tell it, `item` does.
  virtual void notify(const QString &title, const QString &text, TrayItem &item) = 0;

  /// Makes this the one instance of the program in the user's session. False when there is
  /// one already: it has been asked to show itself, and the person is told if it does not answer.
  /// Blocks until the session has answered, some four seconds at most; true where no session answers.
  virtual bool becomeOnlyInstance() = 0;

  /// As it is now; it may change while the program runs.
  virtual WindowAbilities windowAbilities() const { return {}; }

  /// Keeps a window out of task bars and pagers. To be called each time before the window is mapped.
  virtual void keepOutOfTaskbar(const QWidget & /*window*/) const {}

 signals:
  /// "AppleInterfaceThemeChangedNotification": the interface style or the accent colour may be another one now.
  void interfaceThemeChanged();

  /// The program was started once more, or its entry chosen in the desktop's menu.
  void reopened();
};
