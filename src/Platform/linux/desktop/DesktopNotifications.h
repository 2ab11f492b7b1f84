#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <functional>

/// What asks the desktop to show a notification, its text as it stands, without mark-up.
QDBusMessage notificationCall(const QString &title, const QString &text);

/// Has the desktop show it. Does not wait; `otherwise` is called later where the desktop has no such service.
void sendNotification(const QDBusConnection &bus, const QString &title, const QString &text,
                      std::function<void()> otherwise);
