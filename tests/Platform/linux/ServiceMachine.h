#pragma once

// The objects that a disk service would announce, made by hand.

#include "Platform/linux/MediaCatalog.h"

class ServiceMachine {
 public:
  // Each returns the path of the new object. Device numbers have the major number 8.
  QString addDisk(const QString &kernelName, uint minorNumber);
  QString addLoop(const QString &kernelName, uint minorNumber, const QByteArray &backingFile);
  QString addPartition(const QString &disk, int number, const QString &type, const QString &name);
  /// And makes it the drive of this disk.
  QString addDrive(const QString &disk, const QVariantMap &properties);

  void set(const QString &path, const QString &interface, const QString &property,
           const QVariant &value);

  /// An empty catalog that numbers disks without looking at this computer.
  static MediaCatalog catalog();

  ServiceObjects objects;

 private:
  QString add(const QString &path, const InterfaceMap &interfaces);
};
