#include "AppDelegate/AppDelegate.h"
#include "Interface/Notice.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"
#include "Platform/Desktop.h"

void AppDelegate::showPopover() {
  _outcomeIsAwaited = false;  // the popover shows the outcome
  _mainQueue.async([this] { _statusTextField->setStringValue(QString()); });
  _popover->showRelativeTo(topBarItem->anchor(), Qt::BottomEdge);
  if (_popoverTransiencyMonitor) return;
  setPopoverTransiencyMonitor(_desktop.addGlobalMonitor([this] { closeForActivityElsewhere(); }));
}

void AppDelegate::setPopoverTransiencyMonitor(std::unique_ptr<EventMonitor> monitor) {
  _popoverTransiencyMonitor = std::move(monitor);
}

// When the popover closes in any other way, the monitor stays until the next activity in another
// program.
void AppDelegate::closeForActivityElsewhere() {
  // The activity may be the password prompt of a row action.
  if (_busyPartition) return;
  setPopoverTransiencyMonitor(nullptr);
  _popover->close();
}

void AppDelegate::dismissPopover() {
  if (!_busyPartition) _popover->close();
}

// Without a tray item, the user would not know that the program runs, nor how to open it.
void AppDelegate::explainMissingTray() {
  if (topBarItem->trayItem().isShown()) return;
  _trayNotice->setNotice(_desktop.adviceWithoutTray());
  showPopover();
}

bool AppDelegate::popoverShouldDetach(Popover * /*popover*/) {
  return false;
}

void AppDelegate::popoverDidShow() {
  topBarItem->setOpen(true);
  darkModeAndRetina();
}

void AppDelegate::popoverWillClose() {
  topBarItem->setOpen(false);
  darkModeAndRetina();
  _trayNotice->setNotice({});
}
