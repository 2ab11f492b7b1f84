#pragma once

// The machine and the desktop that the program runs on. The build links the one backend that
// defines them.

#include <QString>
#include <memory>

#include "Platform/Desktop.h"
#include "Platform/Platform.h"

/// Returns at once: what is there becomes known when the event loop turns. Needs a
/// QCoreApplication.
std::unique_ptr<Platform> makePlatform();

/// The desktop of this session, on which the program goes by `serviceName`
/// ("com.brinmoor.Keldra"). Needs a QApplication.
std::unique_ptr<Desktop> makeDesktop(const QString &serviceName);
