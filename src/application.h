#pragma once

class AppDelegate;
class Desktop;
class MainInterface;
class Platform;

/// Shows the program and runs until it is quit; at once where another instance runs already, which
/// shows itself then. The exit status is the process's.
int runApplication(Platform &platform, Desktop &desktop);

/// Gives the delegate the objects of the interface, and the controls their actions.
void connectOutlets(MainInterface &interface, AppDelegate &delegate);

/// From now on a signal, the end of the session and the platform's own Quit ask for the same end as the
/// Quit button.
void quitWithTheSystem(AppDelegate &delegate);

/// What our QApplication is set up with, its language among it; called once, after it is made and before
/// anything of ours is.
void configureApplication();
