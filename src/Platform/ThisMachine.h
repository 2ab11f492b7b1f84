#pragma once

// The machine and the desktop that the program runs on. The build links the one backend that
// defines them.

#include <QString>
#include <memory>

#include "Platform/Desktop.h"
#include "Platform/Platform.h"

class QApplication;

/// What this machine wants of a process before anything else is done in it: the first call in main.
/// May start the program once more in its own place, or find that this process was started for ends of the
/// program's own, and not return.
void prepareProcess(char **arguments);

/// The application object, on the window system that serves the program best. A person's own choice counts for
/// more, and programs that are started from it choose for themselves.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

/// Returns at once: what is there becomes known when the event loop turns. Needs a
/// QCoreApplication.
std::unique_ptr<Platform> makePlatform();

/// The desktop of this session, on which the program goes by `serviceName`
/// ("com.brinmoor.Keldra"). Needs a QApplication.
std::unique_ptr<Desktop> makeDesktop(const QString &serviceName);
