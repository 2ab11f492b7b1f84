#pragma once

#include <memory>

#include "Platform/Platform.h"

/// This machine, through the disk service UDisks2 on the system bus and the kernel. Returns at
/// once: what is there becomes known when the event loop turns. Needs a QCoreApplication.
std::unique_ptr<Platform> makeLinuxPlatform();
