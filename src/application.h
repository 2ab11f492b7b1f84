#pragma once

class AppDelegate;
class MainInterface;
class Platform;

/// Shows the program on this machine and runs until it is quit. The exit status is the process's.
int runApplication(Platform &platform);

/// Gives the delegate the objects of the interface, and the controls their actions.
void connectOutlets(MainInterface &interface, AppDelegate &delegate);

/// What our QApplication is set up with; called once, after it is made.
void configureApplication();
