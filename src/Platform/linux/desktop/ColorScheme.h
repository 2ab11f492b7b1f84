#pragma once

// The user's preference for light or dark windows, and the accent colour, as the desktop's portal reports them.

#include <QColor>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <optional>

#include "Platform/linux/MessageBus.h"

class ColorScheme final : public QObject {
  Q_OBJECT

 public:
  enum class Preference : uint { None = 0, Dark = 1, Light = 2 };

  /// The portal's answer comes later. `bus` must outlive this object.
  explicit ColorScheme(MessageBus &bus);

  /// `None` also until a portal has answered.
  Preference preference() const { return _preference; }

  /// Absent where the portal has none.
  std::optional<QColor> accent() const { return _accent; }

 signals:
  void changed();

 private slots:
  void ask();
  void settingChanged(const QDBusMessage &change);

 private:
  void start();
  void askFor(const QString &key);
  void take(const QString &key, const QVariant &value);

  MessageBus &_bus;
  QDBusServiceWatcher _portal;
  Preference _preference = Preference::None;
  std::optional<QColor> _accent;
};
