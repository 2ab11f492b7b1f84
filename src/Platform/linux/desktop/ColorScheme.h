#pragma once

// Whether the person likes windows light or dark, as the desktop's portal tells it.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

class ColorScheme final : public QObject {
  Q_OBJECT

 public:
  enum class Preference : uint { None = 0, Dark = 1, Light = 2 };

  /// Asks at once; what the portal says becomes known later.
  explicit ColorScheme(const QDBusConnection &bus);

  /// `None` also while there is no portal that has answered.
  Preference preference() const { return _preference; }

 signals:
  void changed();

 private slots:
  void ask();
  void settingChanged(const QDBusMessage &change);

 private:
  void take(const QVariant &value);

  QDBusConnection _bus;
  QDBusServiceWatcher _portal;
  Preference _preference = Preference::None;
};
