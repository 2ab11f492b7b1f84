#include "AppDelegate/AppDelegate.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"

void AppDelegate::showPopover() {
  _mainQueue.async([this] { _statusTextField->setStringValue(QString()); });
  _popover->showRelativeTo(topBarItem->anchor(), Qt::BottomEdge);
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
  topBarItem->noteClosed();
  darkModeAndRetina();
}
