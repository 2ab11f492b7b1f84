#pragma once

// The mounts and unmounts that were asked of the disk service and are not answered yet.
//
// Each is completed exactly once, from the event loop: by the service's answer, by the service's
// end, or because its object has vanished. What comes after that is dropped.

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
  /// Both must outlive this.
  Requests(const ServiceTree &tree, VolumeHelpers &helpers) : _tree(tree), _helpers(helpers) {}

  /// `handler` is called with the mount point when a forced unmount goes out although not everything may have been
  /// written.
  void setUnwrittenHandler(std::function<void(const QString &)> handler);

  void mount(const Medium &medium, DiskService::Completion completion);
  void unmount(const Medium &medium, DiskService::Completion completion);

  /// Unmounts although files are open. What was written until now is on the disk first, if that takes no longer than
  /// five seconds.
  void forceUnmount(const Medium &medium, const Mount &mount, DiskService::Completion completion);

  /// Completes everything: the service that was asked is gone.
  void failAll();

  /// Whether anything that was asked of this object is not answered yet.
  bool isWaitingFor(const QString &objectPath) const;

  /// Completes what was asked of an object that is gone (`isPulled`) or has no file system any more.
  /// In the second case a mount waits on: the service may be looking at the disk anew. `isMounted`:
  /// whether the kernel still has it mounted; an unmount has what it wanted if not.
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
