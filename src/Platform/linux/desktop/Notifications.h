#pragma once

#include <QDBusConnection>
#include <QString>
#include <functional>

/// Has the desktop show a notification, its text as it stands, without mark-up. Does not wait;
/// `otherwise` is called later where the desktop has no such service.
void sendNotification(const QDBusConnection &bus, const QString &title, const QString &text,
                      std::function<void()> otherwise);
