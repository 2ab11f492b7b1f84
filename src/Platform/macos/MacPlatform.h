#pragma once

#include <memory>

#include "Platform/Platform.h"

/// This machine, through the system's own frameworks. `root` is put before the paths of its system
/// files; it is empty for the machine's own.
std::unique_ptr<Platform> makeMacPlatform(const QString &root);
