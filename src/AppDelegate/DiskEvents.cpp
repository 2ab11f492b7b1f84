#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Text.h"
#include "Interface/Popover.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"

using namespace Qt::StringLiterals;

namespace {

QString mountedMessage(const QString &path) {
  return u"%1 mouted at %2"_s.arg(printed(DiskArbitrator::findBSDName(path)), path);
}

QString umountedMessage(const QString &path) {
  return path + " umounted!"_L1;
}

QString renamedMessage(const QString &path) {
  return path + " renamed!"_L1;
}

}  // namespace

void AppDelegate::addRefreshObserver() {
  NotificationCenter &workspace = _platform.workspaceNotificationCenter();
  workspace.addObserver(this, kNSWorkspaceDidMountNotification,
                        [this](const Notification &note) { mounted(note); });
  workspace.addObserver(this, kNSWorkspaceDidUnmountNotification,
                        [this](const Notification &note) { umounted(note); });
  workspace.addObserver(this, kNSWorkspaceDidRenameVolumeNotification,
                        [this](const Notification &note) { renamed(note); });
}

void AppDelegate::mounted(const Notification &notification) {
  announce(notification, mountedMessage);
}

void AppDelegate::umounted(const Notification &notification) {
  announce(notification, umountedMessage);
}

void AppDelegate::renamed(const Notification &notification) {
  announce(notification, renamedMessage);
}

void AppDelegate::announce(const Notification &notification, QString (*message)(const QString &)) {
  const QVariant path = notification.userInfo.value(kNSDevicePathKey);
  if (path.isValid()) {
    _mainQueue.async([this, path = path.toString(), message] {
      _statusTextField->setStringValue(QString());
      _statusTextField->setTextColor(TextField::TextColor::Blue);
      _statusTextField->setAnimatedStringValue(message(path));
    });
  }
  refreshListsOrLog();
}

void AppDelegate::arbitrator(const Notification &notification) {
  const QVariant note = notification.userInfo.value(kNoteKey);
  if (!note.isValid()) return;
  // Unlike for a disk event, the colour changes at once and only the text waits its turn.
  _statusTextField->setStringValue(QString());
  _statusTextField->setTextColor(TextField::TextColor::Red);
  _mainQueue.async([this, text = note.toString()] {
    // The job of an event that came in between may have changed the colour.
    _statusTextField->setTextColor(TextField::TextColor::Red);
    _statusTextField->setAnimatedStringValue(text);
    if (!_popover->isShown()) topBarItem->notify(text);
  });
}

void AppDelegate::stopRunning() {}
