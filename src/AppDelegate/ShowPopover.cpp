#include "AppDelegate/AppDelegate.h"
#include "Interface/Notice.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"
#include "Platform/Desktop.h"

void AppDelegate::showPopover() {
  _outcomeIsAwaited = false;  // it will be seen
  _mainQueue.async([this] { _statusTextField->setStringValue(QString()); });
  _popover->showRelativeTo(topBarItem->anchor(), Qt::BottomEdge);
  if (_popoverTransiencyMonitor) return;
  setPopoverTransiencyMonitor(_desktop.addGlobalMonitor([this] { closeForActivityElsewhere(); }));
}

void AppDelegate::setPopoverTransiencyMonitor(std::unique_ptr<EventMonitor> monitor) {
  _popoverTransiencyMonitor = std::move(monitor);
}

// Closing in any other way leaves the monitor, until the next activity elsewhere.
void AppDelegate::closeForActivityElsewhere() {
  // That may be the password prompt that a row action has brought up.
  if (_busyPartition) return;
  setPopoverTransiencyMonitor(nullptr);
  _popover->close();
}

void AppDelegate::dismissPopover() {
  if (!_busyPartition) _popover->close();
}

// Without an item, nobody would know that the program runs, nor how to open it.
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
