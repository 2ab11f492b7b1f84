#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <functional>

/// The call that shows a notification; the text is shown unchanged, without mark-up.
QDBusMessage notificationCall(const QString &title, const QString &text);

/// Shows a notification. Does not block; `otherwise` is called later if the desktop has no such service.
void sendNotification(const QDBusConnection &bus, const QString &title, const QString &text,
                      std::function<void()> otherwise);
