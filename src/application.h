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

/// Whether the session allows what Qt and the desktop need; if not, it is said why. Called before anything
/// else, for Qt breaks off without a word.
bool mayOpenEnoughFiles();

/// Words in the first of the person's languages that there is a translation for, with Qt's own words and
/// the direction of its script. English needs none, and what comes after it is not asked for.
void loadTranslations();

/// What our QApplication is set up with, its language among it; called once, after it is made and before
/// anything of ours is.
void configureApplication();
