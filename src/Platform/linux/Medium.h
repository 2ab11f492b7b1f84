#pragma once

// One disk or partition, put together from the disk service's objects.

#include "Platform/DiskDescription.h"
#include "Platform/linux/ServiceObject.h"

struct Medium {
  QString objectPath;
  int unit = 0;
  int slice = 0;                // 0 for a whole disk
  quint64 device = 0;           // the device number
  QString label;                // of the file system on the medium
  QString version;              // of that file system: "FAT32", "1.0"
  DiskDescription description;  // without the volume's name and path, which depend on a mount

  QString wholeDisk() const;
  QString bsdName() const;

  bool operator==(const Medium &) const = default;
};

/// Absent when the object is not a disk that holds something.
std::optional<Medium> describeDisk(const QString &path, const ServiceObject &block,
                                   const ServiceObject &drive, int unit);

/// Absent when the object is not a partition. `disk` is the object of the partition's whole disk.
std::optional<Medium> describePartition(const QString &path, const ServiceObject &partition,
                                        const ServiceObject &disk, const ServiceObject &drive,
                                        int unit);

/// Whether the object is a whole disk: it has a device number and a size, and a file if it is a
/// loop device.
bool isWholeDisk(const ServiceObject &object);
