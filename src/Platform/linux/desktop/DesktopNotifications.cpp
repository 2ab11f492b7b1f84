#include "Platform/linux/desktop/DesktopNotifications.h"

#include <QDBusPendingCallWatcher>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

QDBusMessage notificationCall(const QString &title, const QString &text) {
  const QString service = u"org.freedesktop.Notifications"_s;
  auto call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service,
                                             u"Notify"_s);
  constexpr uint kReplacesNone = 0;
  constexpr int kDesktopsChoice = -1;
  call << QGuiApplication::applicationDisplayName() << kReplacesNone
       << QGuiApplication::desktopFileName() << title << text << QStringList()
       << QVariantMap{{u"desktop-entry"_s, QGuiApplication::desktopFileName()}} << kDesktopsChoice;
  return call;
}

void sendNotification(const QDBusConnection &bus, const QString &title, const QString &text,
                      std::function<void()> otherwise) {
  auto *reply = new QDBusPendingCallWatcher(bus.asyncCall(notificationCall(title, text)));
  QObject::connect(reply, &QDBusPendingCallWatcher::finished, reply,
                   [reply, otherwise = std::move(otherwise)] {
                     reply->deleteLater();
                     if (reply->isError()) otherwise();
                   });
}
