#pragma once

// The structures of the StatusNotifierItem and menu protocols, as they go over D-Bus.

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QString>
#include <QVariantMap>

class QIcon;

struct NotifierPixmap {
  int width;
  int height;
  QByteArray argb;  // 32 bits a pixel, most significant byte first
};
using NotifierPixmaps = QList<NotifierPixmap>;

struct NotifierToolTip {
  QString iconName;
  NotifierPixmaps pixmaps;
  QString title;
  QString text;
};

struct MenuEntry {
  int id;
  QVariantMap properties;
};
using MenuEntries = QList<MenuEntry>;

struct MenuLayout {
  MenuEntry entry;
  QList<MenuLayout> children;
};

struct MenuEvent {
  int id;
  QString kind;
  QDBusVariant data;
  uint timestamp;
};
using MenuEvents = QList<MenuEvent>;

Q_DECLARE_METATYPE(NotifierPixmap)
Q_DECLARE_METATYPE(NotifierToolTip)
Q_DECLARE_METATYPE(MenuEntry)
Q_DECLARE_METATYPE(MenuLayout)
Q_DECLARE_METATYPE(MenuEvent)

/// Registers the types with QtDBus. Call it before exporting an object that uses them.
void registerNotifierTypes();

/// The picture in each of its sizes.
NotifierPixmaps pixmapsOf(const QIcon &icon);

QDBusArgument &operator<<(QDBusArgument &out, const NotifierPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &in, NotifierPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &out, const NotifierToolTip &tip);
const QDBusArgument &operator>>(const QDBusArgument &in, NotifierToolTip &tip);
QDBusArgument &operator<<(QDBusArgument &out, const MenuEntry &entry);
const QDBusArgument &operator>>(const QDBusArgument &in, MenuEntry &entry);
QDBusArgument &operator<<(QDBusArgument &out, const MenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &in, MenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &out, const MenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &in, MenuEvent &event);
