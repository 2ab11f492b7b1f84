#include "Platform/linux/ServiceObject.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

#include "Foundation/Paths.h"

namespace {

// Compound values are not used, and each of them would keep its whole message in memory.
void insertPlain(QVariantMap &properties, const QVariantMap &added) {
  for (auto property = added.begin(); property != added.end(); ++property) {
    if (property.value().metaType() == QMetaType::fromType<QDBusArgument>()) continue;
    properties.insert(property.key(), property.value());
  }
}

}  // namespace

QVariant ServiceObject::value(const QString &interface, const QString &property) const {
  const auto found = _interfaces.constFind(interface);
  return found == _interfaces.constEnd() ? QVariant() : found->value(property);
}

std::optional<QString> ServiceObject::text(const QString &interface,
                                           const QString &property) const {
  const QVariant found = value(interface, property);
  if (found.typeId() != QMetaType::QString) return std::nullopt;
  return found.toString();
}

std::optional<quint64> ServiceObject::number(const QString &interface,
                                             const QString &property) const {
  const QVariant found = value(interface, property);
  if (found.typeId() != QMetaType::ULongLong && found.typeId() != QMetaType::UInt) {
    return std::nullopt;
  }
  return found.toULongLong();
}

bool ServiceObject::flag(const QString &interface, const QString &property) const {
  const QVariant found = value(interface, property);
  return found.typeId() == QMetaType::Bool && found.toBool();
}

QString ServiceObject::fileName(const QString &interface, const QString &property) const {
  const QVariant found = value(interface, property);
  if (found.typeId() != QMetaType::QByteArray) return {};
  return pathFromBytes(found.toByteArray().constData());  // to the first NUL, or all of it
}

QString ServiceObject::link(const QString &interface, const QString &property) const {
  const QVariant found = value(interface, property);
  if (found.metaType() != QMetaType::fromType<QDBusObjectPath>()) return {};
  const QString path = found.value<QDBusObjectPath>().path();
  return path == QLatin1StringView("/") ? QString() : path;
}

void ServiceObject::add(const InterfaceMap &interfaces) {
  for (auto interface = interfaces.begin(); interface != interfaces.end(); ++interface) {
    QVariantMap properties;
    insertPlain(properties, interface.value());
    _interfaces.insert(interface.key(), properties);
  }
}

void ServiceObject::remove(const QStringList &interfaces) {
  for (const QString &interface : interfaces) _interfaces.remove(interface);
}

void ServiceObject::change(const QString &interface, const QVariantMap &changed,
                           const QStringList &invalidated) {
  const auto found = _interfaces.find(interface);
  if (found == _interfaces.end()) return;
  for (const QString &property : invalidated) found->remove(property);
  // When a value's type has changed, the old value must not remain.
  for (auto property = changed.keyBegin(); property != changed.keyEnd(); ++property) {
    found->remove(*property);
  }
  insertPlain(*found, changed);
}
