#pragma once

// Disks as the disk service and the kernel report them: labels, partition tables and drives come
// from the service's object tree, mounts from the kernel's mount table.
//
// A call costs one system call and a look-up. Changes that it finds count at once; their
// notifications are posted later, from the event loop.

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
  /// `mountTable` is the kernel's file of mounts. News are posted to `workspace`. `workspace` and
  /// `bus` must outlive this object.
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
  /// the disk: "FAT32", "1.0". Empty where none is mounted or the file system has no version.
  QString fileSystemVersionAt(const QString &mountPoint) const;

  /// The answer to a question about a path, if it comes in time; see `VolumeHelpers`. Empty otherwise.
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

  // The state at the last call or event.
  mutable MountTable _mounts;
  mutable MediaCatalog _media;
  mutable QHash<quint64, DiskDescription> _mounted;  // by device, of mounted media, complete
  mutable bool _isChangeUntold = false;
};
