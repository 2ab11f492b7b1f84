#pragma once

// One disk or partition, put together from the disk service's objects.

#include "Platform/DiskDescription.h"
#include "Platform/linux/ServiceObject.h"

struct Medium {
  QString objectPath;
  int unit = 0;
  int slice = 0;                // 0 for a whole disk
  quint64 device = 0;           // the device number
  QString label;                // of the file system on it
  QString version;              // of that file system: "FAT32", "1.0"
  DiskDescription description;  // but for the volume's name and path, which depend on a mount

  QString wholeDisk() const;
  QString bsdName() const;

  bool operator==(const Medium &) const = default;
};

/// Absent when the object is no disk that holds something.
std::optional<Medium> describeDisk(const QString &path, const ServiceObject &block,
                                   const ServiceObject &drive, int unit);

/// Absent when the object is no partition. `disk` is the object of the whole disk that it lies on.
std::optional<Medium> describePartition(const QString &path, const ServiceObject &partition,
                                        const ServiceObject &disk, const ServiceObject &drive,
                                        int unit);

/// Whether the object stands for a whole disk: one with a device number and a size, and with a file
/// if it is a loop device.
bool isWholeDisk(const ServiceObject &object);
