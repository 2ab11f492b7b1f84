#pragma once

#include <QString>
#include <optional>

#include "Platform/DiskDescription.h"

/// The description of whatever a disk reference names. A disk reference is a BSD name ("disk0s1"),
/// a device path ("/dev/disk0s1") or the path of a mounted volume ("/Volumes/EFI", "/"), which a link may lead to.
///
/// Empty when the disk service does not know what is named. Absent when the text is no reference at
/// all: neither of the two kinds of name, nor a path at which anything exists.
std::optional<DiskDescription> getDAdiskDescriptionFromBSDorMountpoint(const QString &reference);
