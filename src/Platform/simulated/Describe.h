#pragma once

// The disk service's descriptions of a simulated machine's disks and partitions.

#include "Platform/simulated/Machine.h"

DiskDescription describe(const SimulatedDisk &disk);

/// Contains the volume's name and path only while it is mounted.
DiskDescription describe(const SimulatedDisk &disk, const SimulatedPartition &partition);
