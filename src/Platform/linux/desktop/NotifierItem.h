#pragma once

// The program's own item for panels with the StatusNotifierItem protocol. Qt's item reports no
// place of a click and ignores a panel that starts later.

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QIcon>

#include "Platform/Desktop.h"
#include "Platform/linux/desktop/NotifierMenu.h"
#include "Platform/linux/desktop/NotifierTypes.h"

inline const QString kNotifierWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
inline const QString kNotifierWatcherPath = QStringLiteral("/StatusNotifierWatcher");

class NotifierItem final : public TrayItem {
  Q_OBJECT

 public:
  /// At most one on a connection.
  explicit NotifierItem(const QDBusConnection &bus);
  ~NotifierItem() override;

  /// Registers the item with the panels; call it again when they have been restarted. Does not
  /// block.
  void announce();

  void setImage(const QIcon &image) override;
  void setHighlighted(bool highlighted) override;
  void setMenu(QMenu *menu) override;
  /// The last known place of a click.
  QRect place() const override { return _place; }
  bool isShown() const override { return true; }  // exists only with a panel
  QString kind() const override { return QStringLiteral("StatusNotifierItem"); }
  /// Panels have no messages of their own.
  void showMessage(const QString &, const QString &) override {}

  // Called by a panel, with the window system's coordinates.
  void activate(const QPoint &place);
  void popUpMenu(const QPoint &place);

  // Read by a panel.
  NotifierPixmaps pixmaps() const;
  QString iconName() const;
  QString iconFolder() const { return _iconFolder; }
  const QDBusConnection &bus() const { return _bus; }

 private:
  QDBusConnection _bus;
  QObject _menuObject;
  NotifierMenu *_exportedMenu;
  class NotifierInterface *_exported;
  QIcon _image;
  bool _highlighted = false;
  QString _iconFolder;  // empty where panels get pixmaps instead
  QPointer<QMenu> _menu;
  QRect _place;
};

/// The interface for panels.
class NotifierInterface final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
  Q_PROPERTY(QString Category READ category)
  Q_PROPERTY(QString Id READ id)
  Q_PROPERTY(QString Title READ title)
  Q_PROPERTY(QString Status READ status)
  Q_PROPERTY(int WindowId READ windowId)
  Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
  Q_PROPERTY(QDBusObjectPath Menu READ menu)
  Q_PROPERTY(QString IconName READ iconName)
  Q_PROPERTY(QString IconThemePath READ iconFolder)
  Q_PROPERTY(NotifierPixmaps IconPixmap READ pixmaps)
  Q_PROPERTY(QString IconAccessibleDesc READ title)
  Q_PROPERTY(QString OverlayIconName READ none)
  Q_PROPERTY(QString AttentionIconName READ none)
  Q_PROPERTY(NotifierToolTip ToolTip READ toolTip)

 public:
  explicit NotifierInterface(NotifierItem &item) : QDBusAbstractAdaptor(&item), _item(item) {}

  QString category() const { return QStringLiteral("Hardware"); }
  QString id() const;
  QString title() const;
  QString status() const { return QStringLiteral("Active"); }
  int windowId() const { return 0; }
  bool itemIsMenu() const { return false; }
  QDBusObjectPath menu() const;
  QString none() const { return {}; }
  QString iconName() const { return _item.iconName(); }
  QString iconFolder() const { return _item.iconFolder(); }
  NotifierPixmaps pixmaps() const { return _item.pixmaps(); }
  NotifierToolTip toolTip() const { return {{}, {}, title(), {}}; }

 public slots:
  void Activate(int x, int y) { _item.activate({x, y}); }
  void SecondaryActivate(int x, int y) { _item.activate({x, y}); }
  /// For panels that do not show menus themselves.
  void ContextMenu(int x, int y) { _item.popUpMenu({x, y}); }
  /// Refused: GNOME shows a busy pointer until a window has used the token.
  void ProvideXdgActivationToken(const QString &token, const QDBusMessage &message);
  void Scroll(int /*delta*/, const QString & /*orientation*/) {}

 signals:
  void NewIcon();
  void NewTitle();
  void NewAttentionIcon();
  void NewOverlayIcon();
  void NewToolTip();
  void NewStatus(const QString &status);

 private:
  NotifierItem &_item;
};
