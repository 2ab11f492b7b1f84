#pragma once

// The name and content of a disk or partition, in the terms of the disk descriptions.

#include "Platform/linux/ServiceObject.h"

/// The name in "/dev/", in the form that sysfs uses: "sda1". Empty when the object has no device.
QString kernelNameOf(const ServiceObject &block);

/// "EFI System Partition" for every partition of that type, whatever its label; for others the name
/// in the partition table, else the purpose of their type. Never empty.
QString mediaNameOfPartition(const ServiceObject &partition);

/// The file's name for a loop device, else vendor and model of the drive (whose object may be
/// empty), else the name of the mapping or, last, of the device. Never empty.
QString mediaNameOfDisk(const ServiceObject &block, const ServiceObject &drive);

/// The partition scheme. Absent for a disk without partitions, or with a scheme of another kind.
std::optional<QString> contentOfDisk(const ServiceObject &block);

/// The partition's type: a GUID in capitals, or "0x" and two digits. Absent when unknown.
std::optional<QString> contentOfPartition(const ServiceObject &partition);

/// How the drive is attached. Absent when this is not known.
std::optional<QString> protocolOf(const ServiceObject &block, const ServiceObject &drive);

/// "msdos" for all FAT file systems, else the file system's own name. Absent when there is no file
/// system that the service offers to mount.
std::optional<QString> volumeKindOf(const ServiceObject &block);
