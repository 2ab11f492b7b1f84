#pragma once

#include <memory>

#include "Platform/Desktop.h"

/// The desktop of this session: its panels and notifications over the session bus, X11 or Wayland
/// through Qt. The program goes by `serviceName` on that bus ("com.brinmoor.Keldra"). Needs a
/// QApplication.
std::unique_ptr<Desktop> makeLinuxDesktop(const QString &serviceName);
