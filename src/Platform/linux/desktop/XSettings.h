#pragma once

// The desktop's settings on an X server (XSETTINGS), where Xfce, MATE and others publish the theme.

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <memory>

struct xcb_connection_t;

/// The text settings in the property _XSETTINGS_SETTINGS by name, up to the first error.
QHash<QByteArray, QString> textSettings(const QByteArray &property);

/// Whether a theme's name suggests a dark theme.
bool isDarkThemeName(const QString &name);

class XSettings final : public QObject {
  Q_OBJECT

 public:
  /// Blocks for the X server's answers. Without a server, there are no settings.
  XSettings();

  /// "Net/ThemeName"; empty while there is none.
  QString themeName() const { return _themeName; }

 signals:
  void changed();

 private:
  struct Disconnect {
    void operator()(xcb_connection_t *server) const;
  };

  void readEvents();
  void readSettings();

  // A separate connection, so that no other code reads its events.
  std::unique_ptr<xcb_connection_t, Disconnect> _server;
  std::unique_ptr<QSocketNotifier> _readable;
  QString _themeName;
};
