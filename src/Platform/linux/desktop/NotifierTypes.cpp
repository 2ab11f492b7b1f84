#include "Platform/linux/desktop/NotifierTypes.h"

#include <QDBusMetaType>
#include <QIcon>
#include <QImage>
#include <QtEndian>

void registerNotifierTypes() {
  qDBusRegisterMetaType<NotifierPixmap>();
  qDBusRegisterMetaType<NotifierPixmaps>();
  qDBusRegisterMetaType<NotifierToolTip>();
  qDBusRegisterMetaType<MenuEntry>();
  qDBusRegisterMetaType<MenuEntries>();
  qDBusRegisterMetaType<MenuLayout>();
  qDBusRegisterMetaType<MenuEvent>();
  qDBusRegisterMetaType<MenuEvents>();
  // QtDBus looks for the types of slots and signals by these names.
  qRegisterMetaType<MenuEntries>("MenuEntries");
  qRegisterMetaType<MenuEvents>("MenuEvents");
}

NotifierPixmaps pixmapsOf(const QIcon &icon) {
  NotifierPixmaps pixmaps;
  for (const QSize &size : icon.availableSizes()) {
    QImage image = icon.pixmap(size, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
      auto *line = reinterpret_cast<quint32 *>(image.scanLine(y));
      qToBigEndian<quint32>(line, image.width(), line);
    }
    pixmaps.append({image.width(), image.height(),
                    QByteArray(reinterpret_cast<const char *>(image.constBits()),
                               static_cast<qsizetype>(image.sizeInBytes()))});
  }
  return pixmaps;
}

QDBusArgument &operator<<(QDBusArgument &out, const NotifierPixmap &pixmap) {
  out.beginStructure();
  out << pixmap.width << pixmap.height << pixmap.argb;
  out.endStructure();
  return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, NotifierPixmap &pixmap) {
  in.beginStructure();
  in >> pixmap.width >> pixmap.height >> pixmap.argb;
  in.endStructure();
  return in;
}

QDBusArgument &operator<<(QDBusArgument &out, const NotifierToolTip &tip) {
  out.beginStructure();
  out << tip.iconName << tip.pixmaps << tip.title << tip.text;
  out.endStructure();
  return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, NotifierToolTip &tip) {
  in.beginStructure();
  in >> tip.iconName >> tip.pixmaps >> tip.title >> tip.text;
  in.endStructure();
  return in;
}

QDBusArgument &operator<<(QDBusArgument &out, const MenuEntry &entry) {
  out.beginStructure();
  out << entry.id << entry.properties;
  out.endStructure();
  return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, MenuEntry &entry) {
  in.beginStructure();
  in >> entry.id >> entry.properties;
  in.endStructure();
  return in;
}

// The protocol packs each child into a variant.
QDBusArgument &operator<<(QDBusArgument &out, const MenuLayout &layout) {
  out.beginStructure();
  out << layout.entry.id << layout.entry.properties;
  out.beginArray(QMetaType::fromType<QDBusVariant>());
  for (const MenuLayout &child : layout.children) {
    out << QDBusVariant(QVariant::fromValue(child));
  }
  out.endArray();
  out.endStructure();
  return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, MenuLayout &layout) {
  QList<QDBusVariant> children;
  in.beginStructure();
  in >> layout.entry.id >> layout.entry.properties >> children;
  in.endStructure();
  layout.children.clear();
  for (const QDBusVariant &child : children) {
    layout.children.append(qdbus_cast<MenuLayout>(child.variant()));
  }
  return in;
}

QDBusArgument &operator<<(QDBusArgument &out, const MenuEvent &event) {
  out.beginStructure();
  out << event.id << event.kind << event.data << event.timestamp;
  out.endStructure();
  return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, MenuEvent &event) {
  in.beginStructure();
  in >> event.id >> event.kind >> event.data >> event.timestamp;
  in.endStructure();
  return in;
}
