#pragma once

// The desktop's settings as an X server hands them on, which is where Xfce, MATE and others say which theme is in use.

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <memory>

struct xcb_connection_t;

/// The text settings of the property _XSETTINGS_SETTINGS, by their names; those up to the first flaw.
QHash<QByteArray, QString> textSettings(const QByteArray &property);

/// Whether a theme of that name is a dark one, as far as names tell.
bool isDarkThemeName(const QString &name);

class XSettings final : public QObject {
  Q_OBJECT

 public:
  /// Waits for the X server's answers. Without one, there are no settings.
  XSettings();

  /// "Net/ThemeName"; empty while nobody tells.
  QString themeName() const { return _themeName; }

 signals:
  void changed();

 private:
  struct Disconnect {
    void operator()(xcb_connection_t *server) const;
  };

  void readEvents();
  void readSettings();

  // A connection of its own, which nobody else reads.
  std::unique_ptr<xcb_connection_t, Disconnect> _server;
  std::unique_ptr<QSocketNotifier> _readable;
  QString _themeName;
};
