#pragma once

// The seam between the program and the desktop that it is shown on: what a program may ask of a
// desktop beyond windows, which are Qt's. Apart from `Platform`, so that a simulated machine can be
// shown on a real desktop.
//
// All of it lives on the main thread, and nothing throws.

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <utility>

class QIcon;
class QMenu;

/// Subjects and what there is to say about each: "Tray", "StatusNotifierItem".
using Facts = QList<std::pair<QString, QString>>;

/// The program's item in the tray. It shows from its first image on; where there is no tray yet,
/// once there is one, however late, and again when the tray has been restarted.
class TrayItem : public QObject {
  Q_OBJECT

 public:
  virtual void setImage(const QIcon &image) = 0;

  /// The menu of a right click, or of any click where the desktop knows no other. Not owned.
  virtual void setMenu(QMenu *menu) = 0;

  /// Where the item is on the screen; null while the desktop does not tell. That may be the place
  /// of the last click on it.
  virtual QRect place() const = 0;

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

  /// What it is and which of its ways are in use, for a report of a fault.
  virtual Facts facts() const = 0;

  /// Tells a person who is not looking at the program. Does not wait; where the desktop has nobody
  /// to tell it, `item` does.
  virtual void notify(const QString &title, const QString &text, TrayItem &item) = 0;

  /// Makes this the one instance of the program in the user's session. NO when there is one
  /// already: it has been asked to show itself. Blocks until the session has answered, some seconds
  /// at the most; where there is no session to ask, the answer is YES.
  virtual bool becomeOnlyInstance() = 0;

 signals:
  /// "AppleInterfaceThemeChangedNotification": the interface style may be another one now.
  void interfaceThemeChanged();

  /// The program was started once more, or its entry chosen in the desktop's menu.
  void reopened();
};
