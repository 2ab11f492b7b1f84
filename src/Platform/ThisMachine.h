#pragma once

// The machine and the desktop that the program runs on. The build links the one backend that
// defines them.

#include <QString>
#include <memory>

#include "Platform/Desktop.h"
#include "Platform/Platform.h"

class QApplication;

/// Prepares the process for this machine; the first call in main. May replace the process by a new start
/// of the program, or not return when this process was started as one of the program's helpers.
void prepareProcess(char **arguments);

/// The application object, on the window system that suits the program best. The user's own choice has
/// priority, and child programs do not inherit the program's choice.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

/// Returns at once; disks become known when the event loop runs. Needs a QCoreApplication.
std::unique_ptr<Platform> makePlatform();

/// The desktop of this session, on which the program has the name `serviceName`
/// ("com.brinmoor.Keldra"). Needs a QApplication.
std::unique_ptr<Desktop> makeDesktop(const QString &serviceName);
