#pragma once

// Keeps one instance of the program in a session: the owner of the program's name on the session
// bus. Other instances ask the owner to show itself, through the interface with which desktops
// start programs (org.freedesktop.Application).

#include <QDBusAbstractAdaptor>
#include <QObject>
#include <QVariantMap>

#include "Platform/linux/MessageBus.h"

class Instance final : public QObject {
  Q_OBJECT

 public:
  /// `bus` must outlive this object.
  Instance(MessageBus &bus, const QString &serviceName);

  /// False when another instance has the name; that one has been asked to show itself, and the user
  /// is told if it does not answer. True where there is no bus, or none that answers. After true,
  /// the name is claimed again whenever the bus restarts. Blocks for three seconds at most.
  bool claim();

 signals:
  void activated();

 private:
  void exportObject();
  void claimAgain();
  QDBusMessage requestForName(bool waitsInQueue) const;
  bool isTaken() const;
  bool activateOther() const;
  void tellOfSilentOther() const;

  MessageBus &_bus;
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
