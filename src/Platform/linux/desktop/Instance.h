#pragma once

// One instance of the program in a session: the one that owns its name on the session bus. The
// others ask that one to show itself, in the way in which desktops start programs
// (org.freedesktop.Application).

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

class Instance final : public QObject {
  Q_OBJECT

 public:
  Instance(const QDBusConnection &bus, const QString &serviceName);

  /// NO when another instance has the name; that one has been asked to show itself. YES where there
  /// is no bus. Blocks for some seconds at the most.
  bool claim();

 signals:
  void activated();

 private:
  bool isTaken() const;
  bool activateOther() const;

  QDBusConnection _bus;
  QString _serviceName;
  QString _path;
};

class InstanceInterface final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  explicit InstanceInterface(Instance &instance)
      : QDBusAbstractAdaptor(&instance), _instance(instance) {}

 public slots:
  void Activate(const QVariantMap &platformData);

 private:
  Instance &_instance;
};
