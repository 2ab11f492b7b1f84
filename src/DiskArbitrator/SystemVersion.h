#pragma once

#include "Platform/Platform.h"

/// The second number of the product version in the first of the two version files that exists; 0
/// when it cannot be read, even if the other file could be.
qint32 minorVersion(const SystemFiles &files);
