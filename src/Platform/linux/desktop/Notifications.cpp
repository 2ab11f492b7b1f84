#include "Platform/linux/desktop/Notifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

void sendNotification(const QDBusConnection &bus, const QString &title, const QString &text,
                      std::function<void()> otherwise) {
  const QString service = u"org.freedesktop.Notifications"_s;
  auto call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service,
                                             u"Notify"_s);
  constexpr uint kReplacesNone = 0;
  constexpr int kDesktopsChoice = -1;
  call << QGuiApplication::applicationDisplayName() << kReplacesNone
       << QGuiApplication::desktopFileName() << title << text << QStringList()
       << QVariantMap{{u"desktop-entry"_s, QGuiApplication::desktopFileName()}} << kDesktopsChoice;
  auto *reply = new QDBusPendingCallWatcher(bus.asyncCall(call));
  QObject::connect(reply, &QDBusPendingCallWatcher::finished, reply,
                   [reply, otherwise = std::move(otherwise)] {
                     reply->deleteLater();
                     if (reply->isError()) otherwise();
                   });
}
