#pragma once

// The pictures of storage media that ship with the program, in a driver bundle of their own, for
// systems whose drivers have none.

#include "Platform/Platform.h"

enum class StorageKind { Internal, Removable, DiskImage, Optical };

/// The value for kDADiskDescriptionMediaIconKey in a disk description.
QVariantMap mediaIcon(StorageKind kind);
