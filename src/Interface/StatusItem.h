#pragma once

// The program's item in the desktop's tray, where the popover appears: what a click on the item
// means, and how the item looks while the popover is open.

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

  /// The item is shown when it has its first image.
  void setImage(const QIcon &image);

  /// Whether the popover is open; the item is highlighted then.
  void setOpen(bool open);

  /// The menu of a right click. Not owned.
  void setMenu(QMenu *menu);

  /// The item's place on the screen; null where the desktop does not report it.
  QRect anchor() const;

  TrayItem &trayItem() { return *_trayItem; }

 signals:
  /// The user has clicked the item to open the popover.
  void action();
  /// The user has clicked the item while the popover is open.
  void dismissal();

 private:
  void activated();

  const Clock &_clock;
  std::unique_ptr<TrayItem> _trayItem;
  std::optional<std::chrono::milliseconds> _openedAt;
  std::optional<std::chrono::milliseconds> _closedAt;
  bool _isOpen = false;
};
