#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "Platform/Platform.h"

/// This machine. A product version that is given stands in place of the one that ships: with
/// "10.8.5", it is an old system.
std::unique_ptr<Platform> makeLinuxPlatform(std::optional<QString> productVersion = {});
