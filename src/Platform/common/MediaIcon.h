#pragma once

// The pictures of storage media that ship with the program, in a driver bundle of their own, for
// systems whose drivers bring none.

#include "Platform/Platform.h"

enum class StorageKind { Internal, Removable, DiskImage, Optical };

/// What a disk description says under kDADiskDescriptionMediaIconKey.
QVariantMap mediaIcon(StorageKind kind);
