#pragma once

class Desktop;
class Platform;

/// Runs the program until it quits. Returns at once where another instance runs already; that
/// instance then shows itself. The result is the process's exit status.
int runApplication(Platform &platform, Desktop &desktop);

/// Whether the limit on open files allows what Qt and the desktop need; if not, prints the reason. Call it
/// before anything else, because Qt exits without a message.
bool mayOpenEnoughFiles();

/// Sets up the QApplication, its language included. Call it once, after the QApplication is made and
/// before any other object of the program.
void configureApplication();
