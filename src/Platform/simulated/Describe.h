#pragma once

// What the disk service says of a simulated machine's disks and partitions.

#include "Platform/simulated/Machine.h"

DiskDescription describe(const SimulatedDisk &disk);

/// Name and path of the volume are there only while it is mounted.
DiskDescription describe(const SimulatedDisk &disk, const SimulatedPartition &partition);
