#pragma once

// Disks as the disk service and the kernel tell of them together: labels, tables and drives come
// from the service's object tree, what is mounted where from the kernel's mount table.
//
// A question costs one system call and a look-up. What it finds changed it takes in at once; the
// news of it are posted later, from the event loop.

#include <QObject>
#include <QTimer>

#include "Platform/Platform.h"
#include "Platform/linux/MediaCatalog.h"
#include "Platform/linux/MountTable.h"
#include "Platform/linux/Requests.h"
#include "Platform/linux/ServiceTree.h"
#include "Platform/linux/VolumeEvents.h"
#include "Platform/linux/VolumeHelpers.h"

class LinuxDiskService final : public QObject, public DiskService, public MediaRegistry {
 public:
  /// `mountTable` is the file in which the kernel tells what is mounted. News are posted to
  /// `workspace`. That and the bus must outlive this.
  LinuxDiskService(MessageBus &bus, UnitNumbers units, const QString &mountTable,
                   NotificationCenter &workspace);

  QString name() const override;
  Presence presence() const override { return _tree.presence(); }
  std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const override;
  std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const override;
  void mount(const QString &bsdName, const std::optional<QString> &path,
             Completion completion) override;
  void unmount(const QString &bsdName, UnmountOption option, Completion completion) override;

  /// The version of the file system mounted at exactly this path, as the service has read it from
  /// the disk: "FAT32", "1.0". Empty where none is mounted or it has none.
  QString fileSystemVersionAt(const QString &mountPoint) const;

  /// The answer to a question about a path, as far as it has come in time; see `VolumeHelpers`. Empty when there is
  /// none.
  QByteArray askVolume(const QString &path, const QByteArray &question);
  VolumeHelpers &helpers() { return _helpers; }

  QStringList mediaNames() const override;
  QStringList mediaNamesOnDisk(const QString &wholeDisk) const override;

 private:
  void refresh() const;
  std::optional<DiskDescription> describe(const Medium *medium) const;
  std::optional<Dissenter> refusalOf(const Medium *medium) const;
  Completion afterTheNews(Completion completion);

  void postNews();
  void postChange();
  void postRename(quint64 device);
  void changePresence();
  void removeInterfaces(const QString &path, const QStringList &interfaces, quint64 device);
  void post(const QList<VolumeEvent> &events);

  NotificationCenter &_workspace;
  mutable ServiceTree _tree;
  VolumeHelpers _helpers;
  Requests _requests;
  QTimer _soon;
  VolumeEvents _events;

  // What the last question, or the last event, found.
  mutable MountTable _mounts;
  mutable MediaCatalog _media;
  mutable QHash<quint64, DiskDescription> _mounted;  // by device, of what is mounted, in full
  mutable bool _isChangeUntold = false;
};
