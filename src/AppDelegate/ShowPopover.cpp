#include "AppDelegate/AppDelegate.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"

void AppDelegate::showPopover() {
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

bool AppDelegate::popoverShouldDetach(Popover * /*popover*/) {
  return false;
}

void AppDelegate::popoverDidShow() {
  topBarItem->setHighlighted(true);
  darkModeAndRetina();
}

void AppDelegate::popoverWillClose() {
  topBarItem->setHighlighted(false);
  darkModeAndRetina();
}
