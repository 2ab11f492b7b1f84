#pragma once

// The disk service's pending mounts and unmounts.
//
// Each is completed exactly once, from the event loop: by the service's answer, by the service's
// exit, or because its object has vanished. A later answer is dropped.

#include <QHash>
#include <QObject>

#include "Platform/Platform.h"
#include "Platform/linux/Medium.h"
#include "Platform/linux/MountTable.h"

class QDBusMessage;
class ServiceTree;
class VolumeHelpers;

class Requests : public QObject {
 public:
  /// Both must outlive this object.
  Requests(const ServiceTree &tree, VolumeHelpers &helpers) : _tree(tree), _helpers(helpers) {}

  /// `handler` gets the mount point when a forced unmount is sent although some data may not have been written.
  void setUnwrittenHandler(std::function<void(const QString &)> handler);

  void mount(const Medium &medium, DiskService::Completion completion);
  void unmount(const Medium &medium, DiskService::Completion completion);

  /// Unmounts even if files are open. Data written until now are flushed to the disk first, if that takes five
  /// seconds at most.
  void forceUnmount(const Medium &medium, const Mount &mount, DiskService::Completion completion);

  /// Completes all requests: the service is gone.
  void failAll();

  /// Whether any request for this object is pending.
  bool isWaitingFor(const QString &objectPath) const;

  /// Completes the requests for an object that is gone (`isPulled`) or has lost its file system. In
  /// the second case a mount stays pending, because the service may be scanning the disk again.
  /// `isMounted`: whether the kernel still has the device mounted; if not, an unmount has succeeded.
  void failVanished(const QString &objectPath, bool isPulled, bool isMounted);

 private:
  struct Request {
    QString bsdName;
    QString objectPath;
    QString method;
    QVariantMap options;
    DiskService::Completion completion;
    bool isSent = false;
  };
  using Number = quint64;

  Number enter(const Medium &medium, const QString &method, const QVariantMap &options,
               DiskService::Completion completion);
  void send(Number number);
  void sendUnwritten(Number number, const Mount &mount, const QString &reason);
  void takeAnswer(Number number, const QDBusMessage &answer);
  void complete(Number number, const std::optional<Dissenter> &dissenter);

  const ServiceTree &_tree;
  VolumeHelpers &_helpers;
  std::function<void(const QString &)> _unwritten;
  QHash<Number, Request> _pending;
  Number _last = 0;
};
