#pragma once

// The program's item in the desktop's tray, from which the popover hangs: what a click on it means,
// and how it looks while the popover is open.

#include <QObject>
#include <QRect>
#include <chrono>
#include <memory>
#include <optional>

class Clock;
class QIcon;
class QMenu;
class TrayItem;

class StatusItem : public QObject {
  Q_OBJECT

 public:
  /// The clock is not owned and must outlive the item.
  StatusItem(std::unique_ptr<TrayItem> trayItem, const Clock &clock);
  ~StatusItem() override;

  /// The item shows from its first image on.
  void setImage(const QIcon &image);

  /// Whether what hangs from it is open; the item is highlighted then.
  void setOpen(bool open);

  /// The menu of a right click. Not owned.
  void setMenu(QMenu *menu);

  /// The item's place on the screen; null where the desktop does not tell.
  QRect anchor() const;

  TrayItem &trayItem() { return *_trayItem; }

 signals:
  /// A person has clicked the item to open what hangs from it.
  void action();
  /// A person has clicked the item while what hangs from it is open.
  void dismissal();

 private:
  void activated();

  const Clock &_clock;
  std::unique_ptr<TrayItem> _trayItem;
  std::optional<std::chrono::milliseconds> _openedAt;
  std::optional<std::chrono::milliseconds> _closedAt;
  bool _isOpen = false;
};
