#include <QGuiApplication>
#include <QPointer>

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

// More names would not fit where they are shown.
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
  workspace.addObserver(this, kVolumeUnwrittenNotification,
                        [this](const Notification &note) { warnUnwritten(note); });
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
      const QString text = message(path);
      _statusTextField->setAnimatedStringValue(text);
      if (_outcomeIsAwaited) tellUnlessSeen(text);
    });
  }
  refreshListsOrLog();
}

void AppDelegate::arbitrator(const Notification &notification) {
  const QVariant note = notification.userInfo.value(kNoteKey);
  if (note.isValid()) complain(note.toString());
}

void AppDelegate::complain(const QString &text) {
  // Unlike for a disk event, the colour changes at once and only the text is queued.
  _statusTextField->setStringValue(QString());
  _statusTextField->setTextColor(TextField::TextColor::Red);
  _mainQueue.async([this, text, inUse = std::exchange(_volumeInUse, std::nullopt)] {
    // The queued job of an event in between may have changed the colour.
    _statusTextField->setTextColor(TextField::TextColor::Red);
    _statusTextField->setAnimatedStringValue(text);
    if (!inUse) return report(text, {});
    DiskArbitrator::findProcessesUsing(*inUse,
                                       [self = QPointer(this), text](const QStringList &processes) {
                                         if (self) self->report(text, whoHolds(processes));
                                       });
  });
}

void AppDelegate::report(const QString &text, const QString &detail) {
  _statusTextField->setDetail(detail, text);
  systemLog(detail.isEmpty() ? text : text + ". "_L1 + detail);
  tellUnlessSeen(text, detail);
}

void AppDelegate::tellUnlessSeen(const QString &text, const QString &detail) {
  _outcomeIsAwaited = false;
  if (!_popover->isShown()) notify(withoutMarkup(text) + u'\n' + withoutMarkup(detail));
}

void AppDelegate::notify(const QString &text) {
  _desktop.notify(QGuiApplication::applicationDisplayName(), text.trimmed(),
                  topBarItem->trayItem());
}

// A sentence about the processes that keep a volume from being unmounted.
QString AppDelegate::whoHolds(const QStringList &processes) {
  if (processes.isEmpty()) return tr("None of your own programs is seen to use it");
  const int more = static_cast<int>(processes.size() - kMostHolders);
  const QString named = processes.mid(0, kMostHolders).join(u", "_s);
  return more > 0 ? tr("In use by %1 and %n more", nullptr, more).arg(named)
                  : tr("In use by %1").arg(named);
}

// A notification, because the status line says next that the volume is gone.
void AppDelegate::warnUnwritten(const Notification &notification) {
  const QString path = notification.userInfo.value(kNSDevicePathKey).toString();
  notify(tr("%1 did not answer in time: not everything may have been written to it")
             .arg(withoutMarkup(path)));
}

void AppDelegate::stopRunning() {}
