#include <QGuiApplication>

#include "AppDelegate/AppDelegate.h"
#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/SystemLog.h"
#include "Foundation/Text.h"
#include "Interface/PlainText.h"
#include "Interface/Popover.h"
#include "Interface/StatusItem.h"
#include "Interface/TextField.h"

using namespace Qt::StringLiterals;

namespace {

// More would not fit where they are shown.
constexpr qsizetype kMostHolders = 6;

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
  if (note.isValid()) complain(note.toString());
}

void AppDelegate::complain(const QString &text) {
  // Unlike for a disk event, the colour changes at once and only the text waits its turn.
  _statusTextField->setStringValue(QString());
  _statusTextField->setTextColor(TextField::TextColor::Red);
  _mainQueue.async([this, text, partition = _busyPartition] {
    // The job of an event that came in between may have changed the colour.
    _statusTextField->setTextColor(TextField::TextColor::Red);
    _statusTextField->setAnimatedStringValue(text);
    const QString holders = whoHolds(partition, text);
    _statusTextField->setDetail(holders, text);
    systemLog(holders.isEmpty() ? text : text + ". "_L1 + holders);
    if (_popover->isShown()) return;
    _desktop.notify(QGuiApplication::applicationDisplayName(),
                    (withoutMarkup(text) + u'\n' + withoutMarkup(holders)).trimmed(),
                    topBarItem->trayItem());
  });
}

// A sentence about the processes that keep a volume from being unmounted; empty when the refusal
// was for another reason.
QString AppDelegate::whoHolds(const std::optional<QString> &partition,
                              const QString &refusal) const {
  if (!partition || refusal != DiskArbitrator::umountRefusal(*partition, kDAReturnBusy)) return {};
  const QStringList processes = DiskArbitrator::findProcessesUsing(*partition);
  if (processes.isEmpty()) return tr("None of your own programs is seen to use it");
  const qsizetype more = processes.size() - kMostHolders;
  const QString named = processes.mid(0, kMostHolders).join(u", "_s);
  return more > 0 ? tr("In use by %1 and %2 more").arg(named).arg(more)
                  : tr("In use by %1").arg(named);
}

void AppDelegate::stopRunning() {}
