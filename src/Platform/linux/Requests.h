#pragma once

// The mounts and unmounts that were asked of the disk service and are not answered yet.
//
// Each is completed exactly once, from the event loop: by the service's answer, by the service's
// end, or because its object has vanished. What comes after that is dropped.

#include <QHash>
#include <QObject>

#include "Platform/Platform.h"
#include "Platform/linux/Medium.h"

class QDBusMessage;
class ServiceTree;

class Requests : public QObject {
 public:
  /// `tree` must outlive this.
  explicit Requests(const ServiceTree &tree) : _tree(tree) {}

  void mount(const Medium &medium, DiskService::Completion completion);
  void unmount(const Medium &medium, DiskService::Completion completion);

  /// Unmounts although files are open. What was written to `mountPoint` until now is on the disk
  /// first.
  void forceUnmount(const Medium &medium, const QString &mountPoint,
                    DiskService::Completion completion);

  /// Completes everything: the service that was asked is gone.
  void failAll();

  /// Whether anything that was asked of this object is not answered yet.
  bool concern(const QString &objectPath) const;

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
  };
  using Number = quint64;

  Number enter(const Medium &medium, const QString &method, const QVariantMap &options,
               DiskService::Completion completion);
  void send(Number number);
  void takeAnswer(Number number, const QDBusMessage &answer);
  void complete(Number number, const std::optional<Dissenter> &dissenter);

  const ServiceTree &_tree;
  QHash<Number, Request> _pending;
  Number _last = 0;
};
