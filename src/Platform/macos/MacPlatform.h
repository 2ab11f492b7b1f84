#pragma once

#include <memory>

#include "Platform/Platform.h"

/// This machine, through the system's own frameworks. `root` is put before the paths of its system
/// files; empty for the real machine.
std::unique_ptr<Platform> makeMacPlatform(const QString &root);
