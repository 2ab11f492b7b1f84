#pragma once

// The program's item in the desktop's tray. Where there is no tray yet, the item appears when one
// does.

#include <QIcon>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>
#include <chrono>
#include <optional>

class Clock;
class QMenu;

class StatusItem : public QObject {
  Q_OBJECT

 public:
  /// The clock is not owned and must outlive the item.
  explicit StatusItem(const Clock &clock, QObject *parent = nullptr);

  /// The item shows from its first image on.
  void setImage(const QIcon &image);

  /// Marks the item while what hangs from it is open.
  void setHighlighted(bool highlighted);

  /// The menu of a right click. Not owned.
  void setMenu(QMenu *menu);

  /// What hangs from the item has just been closed. The desktop may have closed it because of the
  /// very click on the item that is about to arrive, so that click, within 250 ms, is not an
  /// action.
  void noteClosed();

  /// Tells a person who is not looking, in the desktop's own way.
  void notify(const QString &text);

  /// The item's place on the screen; where the desktop does not tell, the pointer's.
  QRect anchor() const;

 signals:
  /// A person has clicked the item.
  void action();

 private:
  void activated(QSystemTrayIcon::ActivationReason reason);
  void updateIcon();

  const Clock &_clock;
  QSystemTrayIcon _trayIcon;
  QIcon _image;
  std::optional<std::chrono::milliseconds> _closedAt;
  bool _highlighted = false;
};
